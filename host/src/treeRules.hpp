#pragma once

// The rules of a tree that a file and an edit have in common, with the sentences for those who
// break them.

#include <corvane/workbench/host/Problem.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::host {

class ElementNode;

/// A problem that is in no file.
[[nodiscard]] tl::unexpected<Problem> refuse(std::string text);

/// Whether the class's elements may stand below the parent. The root takes every class.
[[nodiscard]] bool allowsChild(const ElementNode& parent, const skill::Element::Class& childClass);
[[nodiscard]] std::string childRefused(const ElementNode& parent,
                                       const skill::Element::Class& childClass);

/// A sentence for a name that a child of the parent has already.
[[nodiscard]] std::string nameTaken(const ElementNode& parent, std::string_view name);

} // namespace corvane::workbench::host
