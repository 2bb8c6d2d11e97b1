#include "PumpStationTest.hpp"
#include "demo/findProperty.hpp"
#include <corvane/utils/core/function_ref.hpp>
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/skill/SubElement.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace pump_station::tests {

namespace encoder = corvane::utils::json::encoder;
namespace model = corvane::workbench::model;
namespace process = corvane::workbench::process;

using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;
using corvane::workbench::json::internal::StringOutputStream;

namespace {

template <class T>
std::string messageOf(const tl::expected<T, std::wstring>& result) {
    return result ? "" : toUtf8(result.error());
}

std::string_view actionName(bindings::Action action) {
    switch (action) {
    case bindings::Action::Update:
        return "Update";
    case bindings::Action::Insert:
        return "Insert";
    case bindings::Action::Remove:
        return "Remove";
    case bindings::Action::Move:
        return "Move";
    }
    return "?";
}

} // namespace

std::filesystem::path configuration(std::string_view name) {
    return std::filesystem::path(PUMP_STATION_CONFIGURATIONS) / name;
}

std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string savedSettings(const skill::Element& element) {
    StringOutputStream stream;
    encoder::Document document(stream, encoder::Document::Format::Compact);
    encoder::Object object = document.root().writeObject();
    skill::internal::ElementAccess::save(element, object);
    document.close();
    return stream.take();
}

std::vector<std::string> checkLines(const host::Workbench& workbench,
                                    const host::LoadResult& result,
                                    const std::filesystem::path& file) {
    std::vector<host::Problem> problems = result.problems;
    if (result) {
        workbench.forEachPropertyProblem(
            workbench.root(), [&](const host::PropertyProblem& invalid) {
                const std::string message = toUtf8(invalid.message);
                // A key that does not resolve was reported where the key stands.
                const bool reported =
                    std::ranges::any_of(result.problems, [&](const host::Problem& problem) {
                        return problem.text == message;
                    });
                if (!reported) {
                    host::Problem problem;
                    problem.file = file;
                    problem.line = invalid.element->line();
                    problem.column = invalid.element->column();
                    problem.text = invalid.element->primaryKey() + "." + invalid.path;
                    problem.text += ": " + message;
                    problems.push_back(std::move(problem));
                }
            });
    }
    std::ranges::stable_sort(problems, {}, [](const host::Problem& problem) {
        return std::pair(problem.line, problem.column);
    });
    std::vector<std::string> lines;
    for (host::Problem& problem : problems) {
        problem.file = problem.file.filename();
        lines.push_back(toString(problem));
    }
    return lines;
}

PumpStationTest::PumpStationTest() {
    const auto loaded = workbench.loadSkills(PUMP_STATION_LIBRARY);
    EXPECT_TRUE(loaded) << toString(loaded.error());
}

host::LoadResult PumpStationTest::load(const std::filesystem::path& file,
                                       const host::LoadOptions& options) {
    return workbench.loadConfiguration(file, options);
}

host::LoadResult PumpStationTest::loadText(std::string_view text) {
    corvane::utils::io::MemoryInputStream<char> stream(text);
    return workbench.loadConfiguration(stream, "test.json");
}

std::string PumpStationTest::saved() const {
    StringOutputStream stream;
    EXPECT_TRUE(workbench.saveConfiguration(stream));
    return stream.take();
}

host::ElementNode& PumpStationTest::add(std::string_view parentKey, std::string_view classId,
                                        std::string_view name) {
    const auto added = workbench.add(parentKey, classId, name);
    if (!added) {
        throw std::runtime_error(toString(added.error()));
    }
    return **added;
}

skill::EditableProperty PumpStationTest::property(std::string_view key,
                                                  std::string_view path) const {
    const host::ElementNode* node = workbench.findElement(key);
    if (node == nullptr) {
        throw std::runtime_error("no element " + std::string(key));
    }
    return demo::findProperty(*node, path);
}

std::string PumpStationTest::set(std::string_view key, std::string_view path,
                                 std::string_view text) {
    return messageOf(property(key, path).setText(toWide(text)));
}

std::string PumpStationTest::refer(std::string_view key, std::string_view path,
                                   std::string_view target) {
    const auto result = workbench.setReference(property(key, path), target);
    return result ? "" : toString(result.error());
}

std::string PumpStationTest::insertRow(std::string_view key, std::string_view path,
                                       std::size_t index) {
    return messageOf(property(key, path).insertSubElement(index));
}

std::string PumpStationTest::removeRow(std::string_view key, std::string_view path,
                                       std::size_t index) {
    return messageOf(property(key, path).removeSubElement(index));
}

std::string PumpStationTest::text(std::string_view key, std::string_view path) const {
    return toUtf8(property(key, path).text());
}

std::string PumpStationTest::state(std::string_view key, std::string_view path) const {
    return messageOf(property(key, path).property.state());
}

bool PumpStationTest::visible(std::string_view key, std::string_view path) const {
    return property(key, path).property.visible();
}

std::vector<std::string> PumpStationTest::rows(std::string_view key, std::string_view path) const {
    std::vector<std::string> names;
    const auto collect = [&](skill::SubElement& row) {
        names.push_back(toUtf8(row.displayName()));
    };
    property(key, path).forEachSubElement(collect);
    return names;
}

std::vector<std::string> PumpStationTest::propertyNames(std::string_view key) const {
    std::vector<std::string> names;
    const auto collect = [&](const skill::EditableProperty& described) {
        names.push_back(described.name);
    };
    workbench.findElement(key)->skillElement()->forEachEditableProperty(collect);
    return names;
}

std::uint64_t PumpStationTest::errorCount(std::string_view key) const {
    return workbench.findElement(key)->properties().propertyErrorCount();
}

std::vector<std::string> PumpStationTest::attributes(std::string_view key) const {
    std::vector<std::string> names;
    const auto collect = [&](const model::Attribute& attribute) {
        names.emplace_back(attribute.name());
        return false;
    };
    skill::internal::ElementAccess::forEachAttribute(*workbench.findElement(key)->skillElement(),
                                                     collect);
    return names;
}

std::vector<std::string> PumpStationTest::events(std::string_view key) const {
    std::vector<std::string> names;
    const auto collect = [&](const process::Event& event) {
        names.emplace_back(event.name());
        return false;
    };
    skill::internal::ElementAccess::forEachEvent(*workbench.findElement(key)->skillElement(),
                                                 collect);
    return names;
}

std::vector<std::string> PumpStationTest::tasks(std::string_view key) const {
    std::vector<std::string> names;
    const auto collect = [&](const process::Task& task) {
        names.emplace_back(task.name());
        return false;
    };
    skill::internal::ElementAccess::forEachTask(*workbench.findElement(key)->skillElement(),
                                                collect);
    return names;
}

void PumpStationTest::record(std::string_view key, std::string_view path) {
    const bindings::PropertyHandle handle = property(key, path).property;
    const std::string label(path);
    subscriptions_.push_back(handle.subscribe(
        {.value =
             [this, label](bindings::Action action, std::size_t index) {
                 calls.push_back(label + " value " + std::string(actionName(action)) + " " +
                                 std::to_string(index));
             },
         .state = [this, label,
                   handle] { calls.push_back(label + " state " + messageOf(handle.state())); },
         .visibility =
             [this, label, handle] {
                 calls.push_back(label + (handle.visible() ? " visible" : " hidden"));
             }}));
}

void PumpStationTest::recordErrorCount(std::string_view key) {
    host::ElementNode& node = *workbench.findElement(key);
    const std::string label = node.isInvisibleRoot() ? "root" : std::string(node.name());
    errorCountSubscriptions_.push_back(
        node.properties().subscribeToPropertyErrorCount([this, label, &node] {
            calls.push_back(label + " errors " +
                            std::to_string(node.properties().propertyErrorCount()));
        }));
}

} // namespace pump_station::tests
