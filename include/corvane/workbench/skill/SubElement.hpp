#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/export.hpp>

#include <string>

namespace corvane::workbench::skill {

struct EditableProperty;

/// The base of an item inside an element: the row of a list property, say. It has properties and a
/// display name of its own but is no element of the tree. It belongs to the element that holds it.
///
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT SubElement : public bindings::PropertyController {
public:
    SubElement();
    /// A copy starts unconfigured and unlinked, as every property controller does.
    SubElement(const SubElement& other);
    /// Leaves the target as it is, for the same reason.
    SubElement& operator=(const SubElement& other);
    ~SubElement() override = 0;

    /// The item's name as shown to the user.
    [[nodiscard]] virtual std::wstring displayName() const = 0;
    /// The property under which a change of the display name is published. It is one fixed
    /// identifier for all classes, so that the name of any item can be shown without knowing its
    /// class.
    [[nodiscard]] virtual bindings::PropertyId displayNamePropertyId() const;
    /// Calls the callback with each property that a user may see or edit, in the order of a form.
    /// The description is valid for the length of the call; copies of it as long as the item.
    virtual void
    forEachEditableProperty(utils::core::function_ref<void(const EditableProperty&)> callback) = 0;

    /// The display name's property on this item.
    [[nodiscard]] bindings::PropertyHandle displayNameProperty();
    /// Publishes value and state of the display name; call it when `displayName` has changed.
    /// Does nothing while the property is neither configured nor subscribed. Does not configure.
    void publishDisplayName() const;
};

} // namespace corvane::workbench::skill
