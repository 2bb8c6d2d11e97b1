#pragma once

#include <corvane/workbench/host/Observer.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace corvane::workbench::host {

/// Does what a user interface with everything open would do: subscribes to all properties and error
/// counts of all elements, observes the workbench, and prints each notification as it comes, on a
/// line of its own. When another configuration is loaded, it goes on with that one.
///
/// Must end before the workbench and its elements.
class Notifications final : private Observer {
public:
    /// Where in a line the place of what happened begins, behind the indentation.
    static constexpr std::size_t kPlaceColumn = 12;

    /// Subscribes to what there is now. Lines go to `out`, which must outlive this object.
    Notifications(Workbench& workbench, std::ostream& out);
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    ~Notifications() override;

    /// Subscribes anew to the elements that there was a notification of. To be called after an
    /// edit, which may have brought rows of lists or elements.
    void refresh();

private:
    class Watch;

    void configurationUnloading() override;
    void configurationLoaded() override;
    void elementAdded(const ElementNode& element) override;
    void elementRenamed(const ElementNode& element, std::string_view oldKey) override;
    void elementMoved(const ElementNode& element, std::string_view oldKey) override;
    void elementRemoving(const ElementNode& element) override;
    void elementRemoved(std::string_view key) override;
    void elementMembersChanged(const ElementNode& element) override;
    void referenceKeyChanged(const model::internal::BasicElementReference& reference) override;
    void referenceStateChanged(const model::internal::BasicElementReference& reference) override;

    void watchBelow(ElementNode& element);
    void forgetBelow(ElementNode& element);
    /// Begins a line: what happened, in a column, and where.
    std::ostream& line(std::string_view what, std::string_view where) const;
    [[nodiscard]] std::string
    placeOf(const model::internal::BasicElementReference& reference) const;

    Workbench& workbench_;
    std::ostream& out_;
    std::unordered_map<ElementNode*, std::unique_ptr<Watch>> watches_;
    std::unordered_set<ElementNode*> changed_;
};

} // namespace corvane::workbench::host
