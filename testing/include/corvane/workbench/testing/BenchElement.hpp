#pragma once

#include <corvane/utils/core/Uuid.hpp>

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::host {
class ElementNode;
}

namespace corvane::workbench::testing {

class Bench;
class Setting;

/// An element on a bench. Bench::add and Bench::element make it.
///
/// A name for the element, which it follows through renames and moves. Every operation throws
/// std::out_of_range when the element is no longer there. All texts are UTF-8. Must not be used
/// after the bench has ended.
class BenchElement {
public:
    /// The primary key as it is now.
    [[nodiscard]] std::string key() const;
    /// The errors of the element and of everything below it.
    [[nodiscard]] std::uint64_t errorCount() const;

    /// The setting of that path: a name or, in a row of a list, "steps[1].speed". Rows are counted
    /// from 0; "steps.1.speed" is the same. Throws std::out_of_range, with the paths that there
    /// are, when there is none.
    [[nodiscard]] Setting at(std::string_view path) const;
    /// The names of the settings, in the order of the form.
    [[nodiscard]] std::vector<std::string> settings() const;
    /// The settings as they are saved, as an object of JSON without whitespace.
    [[nodiscard]] std::string saved() const;

    /// The names of the members that the element adds to those every element has.
    /// @{
    [[nodiscard]] std::vector<std::string> attributes() const;
    [[nodiscard]] std::vector<std::string> events() const;
    [[nodiscard]] std::vector<std::string> tasks() const;
    /// @}

    /// The addresses of the settings that refer to the element or its members, sorted.
    [[nodiscard]] std::vector<std::string> referrers() const;

    /// @name Edits
    /// They throw Refused when the workbench refuses them.
    /// @{

    /// Adds a child of that class with its initial settings. Without a name it gets its class's
    /// default name.
    BenchElement add(std::string_view elementClass, std::string_view name = {}) const;
    /// Gives it another name; references to it and below follow.
    void rename(std::string_view newName) const;
    /// Moves it behind the children of another parent; an empty key is the root.
    void moveTo(std::string_view parentKey) const;
    /// Removes it with everything below it.
    void remove() const;

    /// @}

    /// The workbench's half of the element.
    [[nodiscard]] host::ElementNode& node() const;
    /// The element and everything below it as `skillbench show` prints it.
    [[nodiscard]] std::string tree() const;

    /// Prints the key and how many errors there are.
    friend std::ostream& operator<<(std::ostream& to, const BenchElement& element);

private:
    friend class Bench;
    friend class Setting;

    BenchElement(Bench& bench, const host::ElementNode& node);

    Bench* bench_;
    utils::core::Uuid uuid_;
    std::string keyAtFirst_; // to name it when it is no longer there
};

} // namespace corvane::workbench::testing
