#pragma once

#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace pump_station {

/// The rows of a list property. It stands between the element, whose property holds it, and the
/// rows: it adds up their error counts and passes their notifications on. Each row has an
/// allocation of its own and keeps its address, because the user interface and the load context
/// refer to it.
template <class Row>
class SubElementList final : public corvane::workbench::bindings::PropertyContainer {
public:
    /// `makeRow` makes the row that is proposed for an index.
    explicit SubElementList(std::function<std::unique_ptr<Row>(std::size_t index)> makeRow)
        : makeRow_(std::move(makeRow)) {}
    SubElementList(const SubElementList&) = delete;
    SubElementList& operator=(const SubElementList&) = delete;
    ~SubElementList() override = default;

    [[nodiscard]] std::size_t size() const noexcept { return rows_.size(); }
    [[nodiscard]] Row& operator[](std::size_t index) const { return *rows_[index]; }

    /// Adds a row while its element is loaded or copied. The row is not linked yet: linking asks it
    /// for its error count, which its references can tell only when the whole file is known.
    void append(std::unique_ptr<Row> row) { rows_.push_back(std::move(row)); }

    /// Links all rows and counts their errors; to be called by the element when it configures its
    /// properties.
    void link() { subPropertyContainerListChanged({.updateEnclosingContainers = true}); }

    /// Inserts the row that is proposed for the index.
    void insert(std::size_t index) {
        const auto position = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
        Row& row = **rows_.insert(position, makeRow_(index));
        row.setEnclosingPropertyContainer(*this, {});
    }

    void remove(std::size_t index) {
        const auto position = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
        const std::unique_ptr<Row> row = std::move(*position);
        rows_.erase(position);
        // Takes the row's errors out of the counts up to the root.
        row->resetEnclosingPropertyContainer({});
    }

private:
    using Container = corvane::workbench::bindings::PropertyContainer;
    using CrossReference = corvane::workbench::bindings::CrossReferenceController;

    void forEachSubPropertyContainer(
        const corvane::utils::core::function_ref<void(Container&)>& callback,
        bool /*includeInvisible*/) override {
        for (const std::unique_ptr<Row>& row : rows_) {
            callback(*row);
        }
    }

    void forEachLocalCrossReference(
        const corvane::utils::core::function_ref<void(CrossReference&)>& /*callback*/,
        bool /*includeInvisible*/) override {}

    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }

    // What a row raises names a property of the element that holds the list.
    void
    propertyNotificationRaised(const corvane::workbench::bindings::PropertyId& property) override {
        raisePropertyNotification(property);
    }

    std::function<std::unique_ptr<Row>(std::size_t index)> makeRow_;
    std::vector<std::unique_ptr<Row>> rows_;
};

} // namespace pump_station
