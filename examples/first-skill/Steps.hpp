#pragma once

#include "Step.hpp"
#include <corvane/workbench/bindings/PropertyContainer.hpp>

#include <cstddef>
#include <memory>
#include <vector>

namespace first_skill {

/// The steps of a mixer. Stands between the mixer, whose property holds it, and the rows: it adds
/// up their errors and passes on what they raise. A step keeps its address while it is in the list.
class Steps final : public workbench::bindings::PropertyContainer {
public:
    Steps() = default;
    Steps(const Steps& other);
    Steps& operator=(const Steps&) = delete;
    ~Steps() override = default;

    std::size_t size() const { return rows_.size(); }
    Step& operator[](std::size_t index) const { return *rows_[index]; }
    Step& insert(std::size_t index, const Step& step);
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

} // namespace first_skill
