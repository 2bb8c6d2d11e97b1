#pragma once

#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/testing/BenchElement.hpp>

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::testing {

class Bench;

/// A setting of an element, or of a row of one of its lists, as a user meets it: a text to read and
/// to change, visible or not, valid or not. Bench::at and BenchElement::at make it.
///
/// A name for the setting, not the setting itself: it is looked up at each use, so that it follows
/// its element through renames and moves, and names another row after one was inserted in front.
/// Every operation throws std::out_of_range when there is no such setting any more. All texts are
/// UTF-8. Must not be used after the bench has ended.
class Setting {
public:
    /// The element's key and the path, as `skillbench edit` prints them: "main.steps.1.speed".
    [[nodiscard]] std::string address() const;
    /// The element that has the setting, also when a row holds it.
    [[nodiscard]] const BenchElement& element() const noexcept { return element_; }

    /// The value as the user reads it.
    [[nodiscard]] std::string text() const;
    /// Whether the user sees the setting.
    [[nodiscard]] bool visible() const;
    /// What is wrong with the value; empty when it is valid.
    [[nodiscard]] std::string error() const;
    /// Whether there is no way for a user to change it, as with a text that follows from others.
    [[nodiscard]] bool readOnly() const;
    /// The texts to choose from.
    [[nodiscard]] std::vector<std::string> choices() const;
    /// The names of a list's rows, as they are shown.
    [[nodiscard]] std::vector<std::string> rows() const;
    /// What the last edit announced of this setting, see Bench::announced().
    [[nodiscard]] std::vector<std::string> announced() const;

    /// @name Edits
    /// What is refused throws Refused; the operations that only try return the reason instead, or
    /// an empty text when it is done.
    /// @{

    /// Enters a text. For a reference this is the key of its target.
    void set(std::string_view text) const;
    /// The same, but only tries.
    [[nodiscard]] std::string trySet(std::string_view text) const;
    /// Inserts a row in front of the one with that index, or at the end.
    void insertRow(std::size_t index) const;
    /// The same, but only tries.
    [[nodiscard]] std::string tryInsertRow(std::size_t index) const;
    /// Removes the row with that index.
    void removeRow(std::size_t index) const;
    /// The same, but only tries.
    [[nodiscard]] std::string tryRemoveRow(std::size_t index) const;
    /// Moves the row at `from` so that it stands at `to`.
    void moveRow(std::size_t from, std::size_t to) const;
    /// The same, but only tries.
    [[nodiscard]] std::string tryMoveRow(std::size_t from, std::size_t to) const;

    /// @}

    /// The description that the element gives of it, for what has no operation here. As good as the
    /// element or row that gave it.
    [[nodiscard]] skill::EditableProperty property() const;
    /// The element's tree as `skillbench show` prints it, with a mark at the setting.
    [[nodiscard]] std::string tree() const;

    /// Prints address, text and state.
    friend std::ostream& operator<<(std::ostream& to, const Setting& setting);

private:
    friend class BenchElement;

    Setting(BenchElement element, std::string path);
    [[nodiscard]] Bench& bench() const noexcept;
    void require(const std::string& reason) const;

    BenchElement element_;
    std::string path_;
};

} // namespace corvane::workbench::testing
