#include <corvane/workbench/host/editableProperties.hpp>

#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/internal/keys.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>

namespace corvane::workbench::host {

namespace {

using Operation = CurrentOperation::Kind;
using Callback = utils::core::function_ref<void(const PropertyPlace&)>;

void visit(const ElementNode& element, const skill::EditableProperty& property,
           const std::string& prefix, skill::SubElement* row, Callback callback) {
    const std::string path = prefix + property.name;
    callback({element, property, path, row});
    if (!property.forEachSubElement) {
        return;
    }
    std::size_t index = 0;
    const auto visitRow = [&](skill::SubElement& subElement) {
        const std::string rowPrefix = path + "." + std::to_string(index++) + ".";
        const auto visitProperty = [&](const skill::EditableProperty& rowProperty) {
            visit(element, rowProperty, rowPrefix, &subElement, callback);
        };
        subElement.forEachEditableProperty(visitProperty);
    };
    property.forEachSubElement(visitRow);
}

/// The path with its rows written as in "limits.0" where they are written as in "limits[0]".
std::string withRowsAsNames(std::string_view path) {
    std::string result(path);
    std::size_t open = result.find('[', 1);
    while (open != std::string::npos) {
        const std::size_t close = result.find_first_not_of("0123456789", open + 1);
        if (close != std::string::npos && close > open + 1 && result[close] == ']' &&
            result[open - 1] != '.') {
            result.erase(close, 1);
            result[open] = '.';
        }
        open = result.find('[', open + 1);
    }
    return result;
}

/// Calls the function with each beginning of the address that is the key of an element, the longest
/// first, and with what stands behind it, until it returns true.
template <class Visit>
void forEachElementOf(const Workbench& workbench, std::string_view address, Visit&& visit) {
    std::string_view key = address;
    for (;;) {
        const auto [shorter, last] = model::internal::splitMemberKey(key);
        if (!last) {
            return;
        }
        key = shorter;
        ElementNode* element = workbench.findElement(key);
        if (element != nullptr && !key.empty() && visit(*element, address.substr(key.size() + 1))) {
            return;
        }
    }
}

} // namespace

void forEachProperty(const ElementNode& element, Callback callback) {
    if (skill::Element* skillElement = element.skillElement()) {
        const auto visitProperty = [&](const skill::EditableProperty& property) {
            visit(element, property, {}, nullptr, callback);
        };
        callSkill(
            Operation::ListProperties,
            [&] { skillElement->forEachEditableProperty(visitProperty); }, element);
    }
}

std::optional<std::string> findProperty(const ElementNode& element, std::string_view path) {
    const std::string wanted = withRowsAsNames(path);
    std::optional<std::string> result;
    const auto look = [&](const PropertyPlace& place) {
        if (place.path == path || (place.path == wanted && !result)) {
            result = place.path;
        }
    };
    forEachProperty(element, look);
    return result;
}

std::optional<PropertyAddress> findProperty(const Workbench& workbench, std::string_view address) {
    std::optional<PropertyAddress> result;
    forEachElementOf(workbench, address, [&](ElementNode& element, std::string_view path) {
        if (auto found = findProperty(element, path)) {
            result = PropertyAddress{&element, *std::move(found)};
        }
        return result.has_value();
    });
    return result;
}

std::optional<PropertyAddress> splitAddress(const Workbench& workbench, std::string_view address) {
    std::optional<PropertyAddress> result;
    forEachElementOf(workbench, address, [&](ElementNode& element, std::string_view path) {
        result = PropertyAddress{&element, std::string(path)};
        return true;
    });
    return result;
}

std::string propertyNotFound(const Workbench& workbench, std::string_view address) {
    if (const auto parts = splitAddress(workbench, address)) {
        return "the element " + inQuotes(onOneLine(parts->element->primaryKey())) +
               " has no property " + inQuotes(onOneLine(parts->path));
    }
    return inQuotes(onOneLine(address)) + " names no property of an element";
}

void withProperty(const PropertyAddress& address, Callback callback) {
    const auto look = [&](const PropertyPlace& place) {
        if (place.path == address.path) {
            callback(place);
        }
    };
    forEachProperty(*address.element, look);
}

bool isVisible(const PropertyPlace& place) {
    return callSkill(
        Operation::GiveState, [&] { return place.property.property.visible(); }, place.element,
        place.path);
}

const workbench::bindings::PropertyController::PropertyState& stateOf(const PropertyPlace& place) {
    return callSkill(
        Operation::GiveState, [&]() -> auto& { return place.property.property.state(); },
        place.element, place.path);
}

std::wstring valueOf(const PropertyPlace& place) {
    return callSkill(
        Operation::GiveValue,
        [&] { return place.property.text ? place.property.text() : std::wstring(); }, place.element,
        place.path);
}

std::string valueText(const PropertyPlace& place) {
    return onOneLine(valueOf(place));
}

} // namespace corvane::workbench::host
