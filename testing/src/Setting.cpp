#include <corvane/workbench/testing/Setting.hpp>

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/TreePrinter.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/skill/SubElement.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/Refused.hpp>

#include <optional>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace corvane::workbench::testing {

namespace {

using utils::string::toUtf8;

/// The reason, or nothing.
std::string reasonOf(const tl::expected<void, std::wstring>& done) {
    return done ? "" : toUtf8(done.error());
}

} // namespace

Setting::Setting(BenchElement element, std::string path)
    : element_(std::move(element)), path_(std::move(path)) {}

Bench& Setting::bench() const noexcept {
    return *element_.bench_;
}

std::string Setting::address() const {
    return element_.key() + "." + path_;
}

std::string Setting::text() const {
    const auto described = property();
    return described.text ? toUtf8(described.text()) : "";
}

bool Setting::visible() const {
    return property().property.visible();
}

std::string Setting::error() const {
    return reasonOf(property().property.state());
}

bool Setting::readOnly() const {
    using Editor = skill::EditableProperty::Editor;
    const auto described = property();
    return !described.setText && !described.insertSubElement && !described.removeSubElement &&
           !described.moveSubElement && described.editor != Editor::Reference;
}

std::vector<std::string> Setting::choices() const {
    std::vector<std::string> texts;
    for (const std::wstring& choice : property().choices) {
        texts.push_back(toUtf8(choice));
    }
    return texts;
}

std::vector<std::string> Setting::rows() const {
    std::vector<std::string> names;
    const auto collect = [&](skill::SubElement& row) {
        names.push_back(toUtf8(row.displayName()));
    };
    if (const auto described = property(); described.forEachSubElement) {
        described.forEachSubElement(collect);
    }
    return names;
}

std::vector<std::string> Setting::announced() const {
    const std::string place = host::onOneLine(address()) + ":";
    std::vector<std::string> lines = bench().announced();
    std::erase_if(lines, [&](const std::string& line) {
        return line.compare(host::Notifications::kPlaceColumn, place.size(), place) != 0;
    });
    return lines;
}

void Setting::set(std::string_view text) const {
    require(trySet(text));
}

std::string Setting::trySet(std::string_view text) const {
    bench().beginEdit();
    const auto described = property();
    if (described.editor == skill::EditableProperty::Editor::Reference) {
        const auto done = bench().workbench().setReference(described, text);
        return done ? "" : done.error().text;
    }
    return described.setText ? reasonOf(described.setText(utils::string::toWide(text)))
                             : "The setting is read only.";
}

void Setting::insertRow(std::size_t index) const {
    require(tryInsertRow(index));
}

std::string Setting::tryInsertRow(std::size_t index) const {
    bench().beginEdit();
    const auto described = property();
    return described.insertSubElement ? reasonOf(described.insertSubElement(index))
                                      : "The setting takes no further rows.";
}

void Setting::removeRow(std::size_t index) const {
    require(tryRemoveRow(index));
}

std::string Setting::tryRemoveRow(std::size_t index) const {
    bench().beginEdit();
    const auto described = property();
    return described.removeSubElement ? reasonOf(described.removeSubElement(index))
                                      : "The setting keeps its rows.";
}

void Setting::moveRow(std::size_t from, std::size_t to) const {
    require(tryMoveRow(from, to));
}

std::string Setting::tryMoveRow(std::size_t from, std::size_t to) const {
    bench().beginEdit();
    const auto described = property();
    return described.moveSubElement ? reasonOf(described.moveSubElement(from, to))
                                    : "The setting keeps its rows in their order.";
}

void Setting::require(const std::string& reason) const {
    if (!reason.empty()) {
        throw Refused(address() + ": " + reason);
    }
}

skill::EditableProperty Setting::property() const {
    // Used outside the walk: an edit may change what is walked through.
    std::optional<skill::EditableProperty> found;
    const auto take = [&](const host::PropertyPlace& place) { found = place.property; };
    host::withProperty({&element_.node(), path_}, take);
    if (!found) {
        throw std::out_of_range("there is no setting “" + address() + "” any more");
    }
    return *std::move(found);
}

std::string Setting::tree() const {
    std::ostringstream text;
    host::TreePrinter(text, property().property).printProperties(element_.node());
    return text.str();
}

std::ostream& operator<<(std::ostream& to, const Setting& setting) {
    const std::string error = setting.error();
    return to << setting.address() << ": " << host::onOneLine(setting.text()) << " ("
              << (!setting.visible() ? "hidden"
                  : error.empty()    ? "ok"
                                     : "error: " + host::onOneLine(error))
              << ")";
}

} // namespace corvane::workbench::testing
