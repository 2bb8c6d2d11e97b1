#pragma once

#include <corvane/workbench/bindings/functional.hpp>
#include <corvane/workbench/kit/Row.hpp>
#include <corvane/workbench/kit/internal/RowList.hpp>

#include <concepts>
#include <cstddef>
#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace corvane::workbench::kit {

namespace internal {

/// The number of a type that comes nearest to another one; whole numbers are cut off.
template <class Number, class From>
[[nodiscard]] Number nearest(From number) noexcept {
    if constexpr (std::integral<Number> && std::floating_point<From>) {
        using Limits = std::numeric_limits<Number>;
        if (number >= static_cast<From>(Limits::max())) {
            return Limits::max();
        }
        if (!(number > static_cast<From>(Limits::lowest()))) {
            return Limits::lowest();
        }
    }
    return static_cast<Number>(number);
}

} // namespace internal

/// The rows of a list setting: a field of the element, described with Form::rows. A copy has copies
/// of the rows. size() and empty() tell how many there are.
///
/// Rows are added while a file is read, and inserted, removed and moved by the user or by the
/// skill. Whoever does it, error counts, addresses and notifications are right.
template <class R>
class Rows final : public internal::RowList {
public:
    /// The class of the rows.
    using RowType = R;

    /// Walks over the rows; good until one is inserted, removed or moved.
    class Iterator {
    public:
        /// What a standard iterator declares.
        /// @{
        using value_type = R;
        using difference_type = std::ptrdiff_t;
        /// @}

        Iterator() noexcept = default;
        /// The row; it keeps its address while it is in the list.
        [[nodiscard]] R& operator*() const noexcept { return (*rows_)[index_]; }
        /// Goes on to the next row.
        /// @{
        Iterator& operator++() noexcept {
            ++index_;
            return *this;
        }
        Iterator operator++(int) noexcept {
            const Iterator before = *this;
            ++index_;
            return before;
        }
        /// @}

        /// Whether both stand at the same row of the same list.
        [[nodiscard]] friend bool operator==(const Iterator&, const Iterator&) noexcept = default;

    private:
        friend class Rows;
        Iterator(const Rows& rows, std::size_t index) noexcept : rows_(&rows), index_(index) {}

        const Rows* rows_ = nullptr;
        std::size_t index_ = 0;
    };

    Rows() = default;
    /// Copies the rows; the copies belong to the new list.
    Rows(const Rows& other) : RowList(other) {
        for (const R& row : other) {
            append(std::make_unique<R>(row));
        }
    }
    Rows& operator=(const Rows&) = delete;
    ~Rows() override = default;

    /// @pre there is a row at that index
    [[nodiscard]] R& operator[](std::size_t index) const noexcept {
        return static_cast<R&>(rowAt(index));
    }
    /// The rows in their order.
    /// @{
    [[nodiscard]] Iterator begin() const noexcept { return Iterator(*this, 0); }
    [[nodiscard]] Iterator end() const noexcept { return Iterator(*this, size()); }
    /// @}

    /// Inserts a new row before the index, with its initial values and what the list proposes, and
    /// publishes the list. Throws std::out_of_range beyond the end.
    R& insert(std::size_t index) { return static_cast<R&>(insertRow(index)); }
    /// Inserts a copy of a row of this or another list.
    R& insertCopy(std::size_t index, const R& original) {
        return static_cast<R&>(insertRow(index, std::make_unique<R>(original)));
    }
    /// Removes the row and publishes the list. Throws std::out_of_range for a row that is not
    /// there.
    void remove(std::size_t index) { removeRow(index); }
    /// Moves a row to another index, where it stands afterwards, and publishes the list. Throws
    /// std::out_of_range for an index that is not there.
    void move(std::size_t from, std::size_t to) { moveRow(from, to); }

    /// The number that continues the numbers in this field of the rows at an index, which is at
    /// most the number of rows: one step after the row before, or before the first row. What the
    /// field cannot hold becomes the nearest number that it can.
    template <class Number, class Step>
    [[nodiscard]] Number next(Number R::* field, std::size_t index, Step step) const {
        using Calculated =
            std::conditional_t<std::same_as<Number, int> && std::same_as<Step, int>, int, double>;
        std::vector<Calculated> values;
        for (const R& row : *this) {
            // The new row itself is not in the list yet.
            values.push_back(static_cast<Calculated>(row.*field));
        }
        const bindings::functional::Offset<Calculated> offset(static_cast<Calculated>(step));
        return internal::nearest<Number>(offset(values, index));
    }

private:
    [[nodiscard]] std::unique_ptr<Row> makeRow() const override { return std::make_unique<R>(); }
};

} // namespace corvane::workbench::kit
