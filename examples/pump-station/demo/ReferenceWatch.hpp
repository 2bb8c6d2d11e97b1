#pragma once

#include <corvane/workbench/host/Observer.hpp>

#include <iosfwd>

namespace corvane::workbench::host {
class Workbench;
}

namespace pump_station::demo {

/// Prints what an edit of the tree does to the references between the elements.
///
/// Observes the workbench, which must outlive it.
class ReferenceWatch final : public corvane::workbench::host::Observer {
public:
    ReferenceWatch(corvane::workbench::host::Workbench& workbench, std::ostream& out);
    ReferenceWatch(const ReferenceWatch&) = delete;
    ReferenceWatch& operator=(const ReferenceWatch&) = delete;
    ~ReferenceWatch() override;

private:
    void elementAdded(const corvane::workbench::host::ElementNode& element) override;
    void elementRenamed(const corvane::workbench::host::ElementNode& element,
                        std::string_view oldKey) override;
    void elementRemoved(std::string_view key) override;
    void referenceKeyChanged(
        const corvane::workbench::model::internal::BasicElementReference& reference) override;
    void referenceStateChanged(
        const corvane::workbench::model::internal::BasicElementReference& reference) override;

    void printOwner(const corvane::workbench::model::internal::BasicElementReference& reference);

    corvane::workbench::host::Workbench& workbench_;
    std::ostream& out_;
};

} // namespace pump_station::demo
