#include <corvane/workbench/kit/internal/RowList.hpp>

#include "forms/InitialForm.hpp"
#include "forms/RowForms.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/kit/Row.hpp>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace corvane::workbench::kit::internal {

namespace {

[[noreturn]] void throwNoSuchRow() {
    throw std::out_of_range("the list has no row of that number");
}

} // namespace

RowList::RowList() = default;
RowList::RowList(const RowList& other) : PropertyContainer(other) {}
RowList::~RowList() = default;

Row& RowList::insertRow(std::size_t index) {
    if (index > rows_.size()) {
        throwNoSuchRow();
    }
    std::unique_ptr<Row> made = makeRow();
    InitialForm(subjectOf(*made)).makeDefault();
    if (owner_.controller != nullptr) {
        ProposingForm(owner_, *this).propose(*made, index);
    }
    return insertRow(index, std::move(made));
}

Row& RowList::insertRow(std::size_t index, std::unique_ptr<Row> made) {
    if (index > rows_.size()) {
        throwNoSuchRow();
    }
    made->list_ = this;
    const auto place = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    Row& row = **rows_.insert(place, std::move(made));
    if (isLinked()) {
        try {
            row.setEnclosingPropertyContainer(*this, {});
        } catch (...) {
            // A subscriber's exception leaves the row linked; that of the row itself does not.
            if (row.enclosingPropertyContainer() == nullptr) {
                std::erase_if(rows_, [&](const auto& other) { return other.get() == &row; });
            }
            throw;
        }
    }
    publish(bindings::Action::Insert, index);
    return row;
}

void RowList::removeRow(std::size_t index) {
    if (index >= rows_.size()) {
        throwNoSuchRow();
    }
    const auto place = std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    {
        const std::unique_ptr<Row> row = std::move(*place);
        rows_.erase(place);
        // Takes the row's errors out of the counts up to the root.
        row->resetEnclosingPropertyContainer({});
    }
    publish(bindings::Action::Remove, index);
}

void RowList::moveRow(std::size_t from, std::size_t to) {
    if (from >= rows_.size() || to >= rows_.size()) {
        throwNoSuchRow();
    }
    if (from == to) {
        return;
    }
    const auto at = [&](std::size_t index) {
        return std::next(rows_.begin(), static_cast<std::ptrdiff_t>(index));
    };
    if (from < to) {
        std::rotate(at(from), at(from + 1), at(to + 1));
    } else {
        std::rotate(at(to), at(from), at(from + 1));
    }
    publish(bindings::Action::Move, to);
}

void RowList::recheck() {
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        RecheckingForm(subject(index)).recheck();
    }
}

Subject RowList::appendRow() {
    return subjectOf(append(makeRow()));
}

void RowList::link() {
    subPropertyContainerListChanged({.updateEnclosingContainers = true});
}

Row& RowList::rowAt(std::size_t index) const noexcept {
    return *rows_[index];
}

Subject RowList::subject(std::size_t index) const noexcept {
    return subjectOf(*rows_[index]);
}

Subject RowList::subjectOf(Row& row) noexcept {
    return row.subject();
}

bindings::PropertyController& RowList::owner() const {
    if (owner_.controller == nullptr) {
        throw std::logic_error("the list has no owner yet");
    }
    return *owner_.controller;
}

Row& RowList::append(std::unique_ptr<Row> row) {
    row->list_ = this;
    return *rows_.emplace_back(std::move(row));
}

void RowList::forEachSubPropertyContainer(
    const utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
    bool /*includeInvisible*/) {
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        callback(*rows_[index]);
    }
}

void RowList::forEachLocalCrossReference(
    const utils::core::function_ref<void(bindings::CrossReferenceController&)>& /*callback*/,
    bool /*includeInvisible*/) {}

std::uint64_t RowList::localPropertyErrorCount() const {
    return 0;
}

// Whatever a row raises, it is the list that has changed.
void RowList::propertyNotificationRaised(const bindings::PropertyId& /*property*/) {
    raisePropertyNotification(property_);
}

void RowList::publish(bindings::Action action, std::size_t index) const {
    if (owner_.controller != nullptr) {
        owner_.controller->publish(property_, action, index);
    }
}

} // namespace corvane::workbench::kit::internal
