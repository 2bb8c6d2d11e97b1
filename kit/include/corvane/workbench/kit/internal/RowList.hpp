#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/internal/Subject.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace corvane::workbench::bindings {
class CrossReferenceController;
}

namespace corvane::workbench::kit {

class Row;

namespace internal {

/// The rows of a list, whatever their class. It stands between the owner, whose property it is, and
/// the rows: it adds up their error counts, and what they raise becomes a publication of the list.
/// Each row has an allocation of its own and keeps its address, because user interfaces,
/// subscribers and references refer to it.
///
/// Rows are linked to the list when the owner configures its properties, and those that come later
/// at once: linking asks a row for its errors, which it can tell only when everything is loaded.
class RowList : public bindings::PropertyContainer {
public:
    RowList& operator=(const RowList&) = delete;

    [[nodiscard]] std::size_t size() const noexcept { return rows_.size(); }
    [[nodiscard]] bool empty() const noexcept { return rows_.empty(); }

    /// Inserts a new row, with its initial values and what is proposed for the place, before the
    /// index, and publishes the list. Throws std::out_of_range beyond the end.
    Row& insertRow(std::size_t index);
    /// The same with a row that is complete.
    Row& insertRow(std::size_t index, std::unique_ptr<Row> row);
    /// Removes the row and publishes the list. Throws std::out_of_range for a row that is not
    /// there.
    void removeRow(std::size_t index);
    /// Moves a row to another index, where it stands afterwards, and publishes the list. Throws
    /// std::out_of_range for an index that is not there.
    void moveRow(std::size_t from, std::size_t to);
    /// Computes the states of all settings of all rows anew, after something has changed on which
    /// their rules depend.
    void recheck();

    [[nodiscard]] Row& rowAt(std::size_t index) const noexcept;
    [[nodiscard]] Subject subject(std::size_t index) const noexcept;

    /// @name For forms
    /// @{

    /// Says where the list stands, as each description does.
    void place(const Subject& owner, const bindings::PropertyId& property) noexcept {
        owner_ = owner;
        property_ = property;
    }
    /// Adds a row while its owner is loaded. It is not linked yet.
    Subject appendRow();
    /// Links all rows and counts their errors.
    void link();
    /// A row that belongs to no list.
    [[nodiscard]] virtual std::unique_ptr<Row> makeRow() const = 0;
    /// What describes such a row.
    [[nodiscard]] static Subject subjectOf(Row& row) noexcept;

    /// @}

    /// The object whose property the list is. Throws std::logic_error before it was described.
    [[nodiscard]] bindings::PropertyController& owner() const;

protected:
    RowList();
    /// A list of its own; the rows are copied by the subclass.
    RowList(const RowList& other);
    ~RowList() override;

    Row& append(std::unique_ptr<Row> row);

private:
    void forEachSubPropertyContainer(
        const utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
        bool includeInvisible) override;
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(bindings::CrossReferenceController&)>& callback,
        bool includeInvisible) override;
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override;
    void propertyNotificationRaised(const bindings::PropertyId& property) override;

    [[nodiscard]] bool isLinked() const noexcept { return enclosingPropertyContainer() != nullptr; }
    void publish(bindings::Action action, std::size_t index) const;

    Subject owner_;
    bindings::PropertyId property_;
    std::vector<std::unique_ptr<Row>> rows_;
};

} // namespace internal

} // namespace corvane::workbench::kit
