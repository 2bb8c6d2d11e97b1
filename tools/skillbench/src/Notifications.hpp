#pragma once

#include <corvane/workbench/host/Observer.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace corvane::skillbench {

/// Does what a user interface with everything open would do: subscribes to all properties and error
/// counts of all elements, observes the workbench, and prints each notification as it comes, on a
/// line of its own.
///
/// Must end before the workbench and its elements, and while it lives no other configuration
/// is loaded.
class Notifications final : private workbench::host::Observer {
public:
    Notifications(workbench::host::Workbench& workbench, std::ostream& out);
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;
    ~Notifications() override;

    /// Subscribes anew to the elements that there was a notification of. To be called after an
    /// edit, which may have brought rows of lists or elements.
    void refresh();

private:
    class Watch;

    void elementAdded(const workbench::host::ElementNode& element) override;
    void elementRenamed(const workbench::host::ElementNode& element,
                        std::string_view oldKey) override;
    void elementMoved(const workbench::host::ElementNode& element,
                      std::string_view oldKey) override;
    void elementRemoving(const workbench::host::ElementNode& element) override;
    void elementRemoved(std::string_view key) override;
    void elementMembersChanged(const workbench::host::ElementNode& element) override;
    void referenceKeyChanged(
        const workbench::model::internal::BasicElementReference& reference) override;
    void referenceStateChanged(
        const workbench::model::internal::BasicElementReference& reference) override;

    void watchBelow(workbench::host::ElementNode& element);
    void forgetBelow(workbench::host::ElementNode& element);
    /// Begins a line: what happened, in a column, and where.
    std::ostream& line(std::string_view what, std::string_view where) const;
    [[nodiscard]] std::string
    placeOf(const workbench::model::internal::BasicElementReference& reference) const;

    workbench::host::Workbench& workbench_;
    std::ostream& out_;
    std::unordered_map<workbench::host::ElementNode*, std::unique_ptr<Watch>> watches_;
    std::unordered_set<workbench::host::ElementNode*> changed_;
};

} // namespace corvane::skillbench
