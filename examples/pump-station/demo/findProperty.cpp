#include "findProperty.hpp"

#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

namespace pump_station::demo {

namespace host = corvane::workbench::host;
namespace skill = corvane::workbench::skill;

namespace {

/// Takes the first part off a path.
std::string_view takePart(std::string_view& path) {
    const std::size_t end = std::min(path.find('.'), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    return part;
}

/// Elements and rows describe their properties alike.
std::optional<skill::EditableProperty> find(auto& described, std::string_view path) {
    const std::string_view name = takePart(path);
    std::optional<skill::EditableProperty> found;
    const auto pick = [&](const skill::EditableProperty& property) {
        if (property.name == name) {
            found = property;
        }
    };
    described.forEachEditableProperty(pick);
    if (path.empty() || !found || !found->forEachSubElement) {
        return path.empty() ? found : std::nullopt;
    }
    const std::string_view wantedRow = takePart(path);
    std::optional<skill::EditableProperty> foundInRow;
    std::size_t row = 0;
    const auto pickRow = [&](skill::SubElement& subElement) {
        if (std::to_string(row++) == wantedRow) {
            foundInRow = find(subElement, path);
        }
    };
    found->forEachSubElement(pickRow);
    return foundInRow;
}

} // namespace

skill::EditableProperty findProperty(const host::ElementNode& element, std::string_view path) {
    if (std::optional<skill::EditableProperty> found = find(*element.skillElement(), path)) {
        return *std::move(found);
    }
    throw std::runtime_error("the element “" + element.primaryKey() + "” has no property “" +
                             std::string(path) + "”");
}

} // namespace pump_station::demo
