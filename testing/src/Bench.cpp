#include <corvane/workbench/testing/Bench.hpp>

#include "LinkedClasses.hpp"
#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/workbench/host/TreePrinter.hpp>
#include <corvane/workbench/host/configurationProblems.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/skill/Skill.hpp>
#include <corvane/workbench/testing/Refused.hpp>

#include <ostream>
#include <stdexcept>

namespace corvane::workbench::testing {

namespace {

constexpr std::string_view kBlanks = " ";

void requireAdded(const host::Result<void>& added) {
    if (!added) {
        throw std::runtime_error(toString(added.error()));
    }
}

std::string trimmed(std::string_view line) {
    const std::size_t begin = std::min(line.find_first_not_of(kBlanks), line.size());
    return std::string(line.substr(begin, line.find_last_not_of(kBlanks) + 1 - begin));
}

} // namespace

Bench::Bench() : notifications_(workbench_, log_) {
    // The newest stands first in the list.
    std::vector<std::reference_wrapper<const skill::Skill::Class>> linked;
    for (const skill::Skill::Class& skillClass : skill::Skill::Class::allSkills()) {
        linked.insert(linked.begin(), skillClass);
    }
    for (const skill::Skill::Class& skillClass : linked) {
        requireAdded(workbench_.addSkill(skillClass));
    }
}

Bench::Bench(const std::filesystem::path& skillLibrary) : notifications_(workbench_, log_) {
    requireAdded(workbench_.loadSkills(skillLibrary));
}

Bench::Bench(std::initializer_list<ElementClass> elementClasses)
    : notifications_(workbench_, log_) {
    addElementClasses(workbench_, elementClasses);
}

Bench::~Bench() = default;

BenchElement Bench::add(std::string_view elementClass, std::string_view name) {
    return add("", elementClass, name);
}

BenchElement Bench::add(std::string_view parentKey, std::string_view elementClass,
                        std::string_view name) {
    beginEdit();
    const auto added = workbench_.add(parentKey, elementClass, name);
    if (!added) {
        throw Refused(added.error().text);
    }
    return {*this, **added};
}

BenchElement Bench::element(std::string_view key) {
    const host::ElementNode* node = workbench_.findElement(key);
    if (node == nullptr || node->isInvisibleRoot()) {
        throw std::out_of_range("there is no element “" + std::string(key) + "”");
    }
    return {*this, *node};
}

bool Bench::has(std::string_view key) const {
    return workbench_.findElement(key) != nullptr;
}

Setting Bench::at(std::string_view address) {
    auto found = host::findProperty(workbench_, address);
    if (!found) {
        found = host::splitAddress(workbench_, address);
    }
    if (!found) {
        throw std::out_of_range(host::propertyNotFound(workbench_, address));
    }
    return BenchElement(*this, *found->element).at(found->path);
}

std::uint64_t Bench::errorCount() const {
    return workbench_.root().properties().propertyErrorCount();
}

void Bench::load(std::string_view json) {
    tryLoad(json);
    requireLoaded();
}

void Bench::loadFile(const std::filesystem::path& file) {
    tryLoadFile(file);
    requireLoaded();
}

host::LoadResult Bench::tryLoad(std::string_view json, const host::LoadOptions& options) {
    beginEdit();
    file_ = "configuration.json";
    utils::io::MemoryInputStream<char> stream(json);
    return loaded_ = workbench_.loadConfiguration(stream, file_, options);
}

host::LoadResult Bench::tryLoadFile(const std::filesystem::path& file,
                                    const host::LoadOptions& options) {
    beginEdit();
    file_ = file;
    return loaded_ = workbench_.loadConfiguration(file, options);
}

void Bench::requireLoaded() const {
    if (!loaded_) {
        std::string text = "the configuration cannot be loaded";
        for (const std::string& problem : problems()) {
            text += "\n" + problem;
        }
        throw Refused(text);
    }
}

std::vector<std::string> Bench::problems() const {
    std::vector<std::string> lines;
    for (auto& [problem, element, property] :
         host::configurationProblems(workbench_, loaded_, file_)) {
        problem.file = problem.file.filename();
        lines.push_back(host::onOneLine(toString(problem)));
    }
    return lines;
}

std::string Bench::saved() const {
    json::internal::StringOutputStream stream;
    if (const auto done = workbench_.saveConfiguration(stream); !done) {
        throw Refused(done.error().text);
    }
    return stream.take();
}

std::vector<std::string> Bench::announced() const {
    std::vector<std::string> lines;
    std::istringstream log(log_.str());
    for (std::string line; std::getline(log, line);) {
        lines.push_back(trimmed(line));
    }
    return lines;
}

std::string Bench::tree() const {
    std::ostringstream text;
    host::TreePrinter(text).printChildren(workbench_.root());
    return text.str();
}

void Bench::beginEdit() {
    log_.str("");
    notifications_.refresh();
}

std::ostream& operator<<(std::ostream& to, const Bench& bench) {
    return to << "a bench with " << host::countText(bench.workbench_.elementCount(), "element")
              << " and " << host::countText(bench.errorCount(), "error");
}

} // namespace corvane::workbench::testing
