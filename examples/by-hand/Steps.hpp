#pragma once

#include "Step.hpp"
#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include <cstddef>
#include <memory>
#include <vector>

namespace by_hand {

/// The steps of a mixer. Stands between the mixer, whose property holds it, and the rows: it adds
/// up their errors and passes on what they raise. A step keeps its address while it is in the list,
/// because the load context, the workbench and subscribers refer to it.
class Steps final : public workbench::bindings::PropertyContainer {
public:
    Steps() = default;
    Steps(const Steps& other);
    Steps& operator=(const Steps&) = delete;
    ~Steps() override = default;

    std::size_t size() const { return rows_.size(); }
    Step& operator[](std::size_t index) const { return *rows_[index]; }

    /// Adds a step to be loaded. It is not linked yet: linking configures it, and its references
    /// are empty until the whole file is known.
    Step& append();
    /// Links all steps and counts their errors; for the mixer, when it configures its properties.
    void link();

    /// Inserts a new step and links it.
    void insert(std::size_t index);
    /// Unlinks a step and destroys it.
    void remove(std::size_t index);

private:
    void
    forEachSubPropertyContainer(const utils::core::function_ref<void(PropertyContainer&)>& callback,
                                bool includeInvisible) override;
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(workbench::bindings::CrossReferenceController&)>&
            callback,
        bool includeInvisible) override;
    std::uint64_t localPropertyErrorCount() const override;
    void propertyNotificationRaised(const workbench::bindings::PropertyId& property) override;

    std::vector<std::unique_ptr<Step>> rows_;
};

} // namespace by_hand
