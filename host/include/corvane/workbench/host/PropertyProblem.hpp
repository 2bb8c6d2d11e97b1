#pragma once

#include <corvane/workbench/bindings/PropertyHandle.hpp>

#include <string>

namespace corvane::workbench::host {

class ElementNode;

/// A visible property whose value is not valid. See Workbench::forEachPropertyProblem.
struct PropertyProblem {
    /// The element that the property belongs to, also when a sub-element of it holds the property.
    const ElementNode* element = nullptr;
    /// The invalid property; good as long as what holds it.
    bindings::PropertyHandle property;
    /// The names that lead to the property (UTF-8), joined by ".": the element's own property, for
    /// a property of a list's row then the row's number counted from 0, then the row's property.
    std::string path;
    /// The same with the names shown to the user.
    std::wstring displayPath;
    /// The message of the property's state.
    std::wstring message;
};

} // namespace corvane::workbench::host
