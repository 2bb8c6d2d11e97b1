#pragma once

#include <string_view>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::host {

class ElementNode;

/// Is told what a workbench did to its tree, beside the notifications that the properties
/// themselves publish. All calls come after the change is complete, except those whose name says
/// otherwise. Within a call the tree may be read but not edited: the workbench refuses. An
/// exception does not stop an edit nor the other notifications; the first one is thrown on to the
/// caller of the edit when all are through.
class Observer {
public:
    virtual ~Observer() = default;

    /// All elements but the root are about to be destroyed, because another configuration takes
    /// their place. Drop what refers to them, subscriptions to their properties included.
    virtual void configurationUnloading() {}
    /// The elements of the new configuration are in the tree.
    virtual void configurationLoaded() {}

    /// The element is in the tree.
    virtual void elementAdded(const ElementNode& /*element*/) {}
    /// `oldKey` is the primary key that the element had before.
    /// @{
    virtual void elementRenamed(const ElementNode& /*element*/, std::string_view /*oldKey*/) {}
    virtual void elementMoved(const ElementNode& /*element*/, std::string_view /*oldKey*/) {}
    /// @}

    /// The element and everything below it is about to be destroyed; otherwise as
    /// configurationUnloading().
    virtual void elementRemoving(const ElementNode& /*element*/) {}
    /// `key` is the primary key that the element had.
    virtual void elementRemoved(std::string_view /*key*/) {}
    /// The element's attributes, events or tasks are others than before.
    virtual void elementMembersChanged(const ElementNode& /*element*/) {}

    /// The reference has another primary key; its own property is published next.
    virtual void referenceKeyChanged(const model::internal::BasicElementReference& /*reference*/) {}
    /// The reference became dangling or whole, or does not resolve for another reason than before;
    /// its own property is published next.
    virtual void
    referenceStateChanged(const model::internal::BasicElementReference& /*reference*/) {}
};

} // namespace corvane::workbench::host
