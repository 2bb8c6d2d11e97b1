#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include <tl/expected.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::skill {

class SubElement;

/// What a generic user interface needs to show and edit a property of an element or sub-element
/// whose class it does not know. A value; its callables and its handle refer to the element or
/// sub-element that described it and must not be used after that has ended or moved.
struct EditableProperty {
    /// The kind of control that suits the property.
    enum class Editor {
        Text,
        Number,
        Choice,
        Duration,
        TimeStamp,
        Uuid,
        Reference,
        SubElementList,
        /// Set or not: the texts are "true" and "false".
        Flag
    };

    /// Stable name (UTF-8), as in configuration files and on command lines.
    std::string name{};
    /// The name as shown to the user.
    std::wstring displayName{};
    /// Decides which of the callables below have a use.
    Editor editor = Editor::Text;
    /// State, visibility and change notifications of the property.
    bindings::PropertyHandle property{};
    /// The value's text as shown to the user.
    std::function<std::wstring()> text{};
    /// Stores the value that the text stands for and publishes the property, or leaves the value
    /// alone and says why the text is no value. Empty: the property is read only, or it is a
    /// reference (Editor::Reference), which the workbench sets.
    std::function<tl::expected<void, std::wstring>(std::wstring_view)> setText{};
    /// The texts to choose from, for Editor::Choice.
    std::vector<std::wstring> choices{};
    /// Visits the rows in their order, for Editor::SubElementList.
    std::function<void(const utils::core::function_ref<void(SubElement&)>&)> forEachSubElement{};
    /// Inserts a default row before the given index (the row count: at the end), and publishes
    /// the property; or says why not. Empty: the list is fixed.
    std::function<tl::expected<void, std::wstring>(std::size_t)> insertSubElement{};
    /// Removes the row at the given index and publishes the property; or says why not.
    std::function<tl::expected<void, std::wstring>(std::size_t)> removeSubElement{};
    /// Moves the row at the first index to the second one, where it stands afterwards, and
    /// publishes the property; or says why not. Empty: the rows keep their order.
    std::function<tl::expected<void, std::wstring>(std::size_t, std::size_t)> moveSubElement{};
    /// A sentence that explains the property to the user; may be empty.
    std::wstring toolTip{};
};

} // namespace corvane::workbench::skill
