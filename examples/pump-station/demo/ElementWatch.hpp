#pragma once

#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace pump_station::demo {

/// Prints what a user interface that shows an element is told: the callbacks of its properties and
/// of the rows of its lists, in the order in which they come, and the error counts on their way
/// from the element up to the root.
///
/// Ends before the element does, and before rows of its lists are removed. Rows that are inserted
/// are watched as well.
class ElementWatch {
public:
    ElementWatch(corvane::workbench::host::ElementNode& element, std::ostream& out);
    ElementWatch(const ElementWatch&) = delete;
    ElementWatch& operator=(const ElementWatch&) = delete;

private:
    using Subscription = corvane::workbench::bindings::PropertyController::Subscription;
    using ErrorCountSubscription =
        corvane::workbench::bindings::PropertyContainer::ErrorCountSubscription;

    void watchErrorCount(corvane::workbench::host::ElementNode& element);
    void watchProperty(const corvane::workbench::skill::EditableProperty& property,
                       const std::string& label);
    void watchRow(corvane::workbench::skill::SubElement& row, const std::string& label);
    void watchInsertedRow(const corvane::workbench::skill::EditableProperty& list,
                          const std::string& label, std::size_t index);
    void print(std::string_view what, const std::string& label, const std::string& value);

    std::ostream& out_;
    std::vector<Subscription> subscriptions_;
    std::vector<ErrorCountSubscription> errorCountSubscriptions_;
};

} // namespace pump_station::demo
