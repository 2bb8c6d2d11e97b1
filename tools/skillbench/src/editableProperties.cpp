#include "editableProperties.hpp"

#include "text.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/model/internal/keys.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>

namespace corvane::skillbench {

namespace {

namespace host = workbench::host;
namespace skill = workbench::skill;

using Operation = host::CurrentOperation::Kind;
using Callback = utils::core::function_ref<void(const PropertyPlace&)>;

void visit(const host::ElementNode& element, const skill::EditableProperty& property,
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

bool hasProperty(const host::ElementNode& element, std::string_view path) {
    bool found = false;
    const auto look = [&](const PropertyPlace& place) { found = found || place.path == path; };
    forEachProperty(element, look);
    return found;
}

/// Calls the function with each beginning of the address that is the key of an element, the longest
/// first, and with what stands behind it, until it returns true.
template <class Visit>
void forEachElementOf(const host::Workbench& workbench, std::string_view address, Visit&& visit) {
    std::string_view key = address;
    for (;;) {
        const auto [shorter, last] = workbench::model::internal::splitMemberKey(key);
        if (!last) {
            return;
        }
        key = shorter;
        host::ElementNode* element = workbench.findElement(key);
        if (element != nullptr && !key.empty() && visit(*element, address.substr(key.size() + 1))) {
            return;
        }
    }
}

} // namespace

void forEachProperty(const host::ElementNode& element, Callback callback) {
    if (skill::Element* skillElement = element.skillElement()) {
        const auto visitProperty = [&](const skill::EditableProperty& property) {
            visit(element, property, {}, nullptr, callback);
        };
        host::callSkill(
            Operation::ListProperties,
            [&] { skillElement->forEachEditableProperty(visitProperty); }, element);
    }
}

std::optional<PropertyAddress> findProperty(const host::Workbench& workbench,
                                            std::string_view address) {
    std::optional<PropertyAddress> result;
    forEachElementOf(workbench, address, [&](host::ElementNode& element, std::string_view path) {
        if (hasProperty(element, path)) {
            result = PropertyAddress{&element, std::string(path)};
        }
        return result.has_value();
    });
    return result;
}

std::string propertyNotFound(const host::Workbench& workbench, std::string_view address) {
    std::string result = inQuotes(address) + " names no property of an element";
    forEachElementOf(workbench, address, [&](host::ElementNode& element, std::string_view path) {
        result =
            "the element " + inQuotes(element.primaryKey()) + " has no property " + inQuotes(path);
        return true;
    });
    return result;
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
    return host::callSkill(
        Operation::GiveState, [&] { return place.property.property.visible(); }, place.element,
        place.path);
}

const workbench::bindings::PropertyController::PropertyState& stateOf(const PropertyPlace& place) {
    return host::callSkill(
        Operation::GiveState, [&]() -> auto& { return place.property.property.state(); },
        place.element, place.path);
}

std::wstring valueOf(const PropertyPlace& place) {
    return host::callSkill(
        Operation::GiveValue,
        [&] { return place.property.text ? place.property.text() : std::wstring(); }, place.element,
        place.path);
}

std::string valueText(const PropertyPlace& place) {
    return onOneLine(valueOf(place));
}

} // namespace corvane::skillbench
