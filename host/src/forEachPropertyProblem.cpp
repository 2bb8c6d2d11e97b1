#include "forEachPropertyProblem.hpp"

#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <string>

namespace corvane::workbench::host {

namespace {

class PropertyProblemWalk {
public:
    using Callback = utils::core::function_ref<void(const PropertyProblem&)>;

    PropertyProblemWalk(const ElementNode& element, Callback callback)
        : element_(element), callback_(callback) {}

    void visit(const skill::EditableProperty& property, const std::string& path,
               const std::wstring& displayPath) {
        const std::string ownPath = path + property.name;
        const auto asked = [&](auto&& ask) -> decltype(auto) {
            return callSkill(CurrentOperation::Kind::GiveState, ask, element_, ownPath);
        };
        if (!asked([&] { return property.property.visible(); })) {
            return;
        }
        const std::wstring ownDisplayPath = displayPath + property.displayName;
        const auto& state = asked([&]() -> decltype(auto) { return property.property.state(); });
        if (!state) {
            callback_({&element_, property.property, ownPath, ownDisplayPath, state.error()});
        }
        if (!property.forEachSubElement) {
            return;
        }
        std::size_t row = 0;
        const auto visitRow = [&](skill::SubElement& subElement) {
            const std::string rowPath = ownPath + "." + std::to_string(row) + ".";
            const std::wstring rowDisplayPath =
                ownDisplayPath + L"." + subElement.displayName() + L".";
            const auto visitProperty = [&](const skill::EditableProperty& rowProperty) {
                visit(rowProperty, rowPath, rowDisplayPath);
            };
            subElement.forEachEditableProperty(visitProperty);
            ++row;
        };
        property.forEachSubElement(visitRow);
    }

private:
    const ElementNode& element_;
    Callback callback_;
};

} // namespace

void forEachPropertyProblem(const ElementNode& top,
                            utils::core::function_ref<void(const PropertyProblem&)> callback) {
    // The counts say where there is nothing to be found.
    if (top.properties().propertyErrorCount() == 0) {
        return;
    }
    if (skill::Element* skillElement = top.skillElement();
        skillElement != nullptr && skillElement->propertyErrorCount() != 0) {
        PropertyProblemWalk walk(top, callback);
        const auto visit = [&](const skill::EditableProperty& property) {
            walk.visit(property, {}, {});
        };
        callSkill(
            CurrentOperation::Kind::ListProperties,
            [&] { skillElement->forEachEditableProperty(visit); }, top);
    }
    for (std::size_t index = 0; index < top.childCount(); ++index) {
        forEachPropertyProblem(top.child(index), callback);
    }
}

} // namespace corvane::workbench::host
