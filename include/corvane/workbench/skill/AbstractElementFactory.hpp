#pragma once

#include <corvane/workbench/export.hpp>

#include <memory>

namespace corvane::workbench::skill {

class Element;

/// Creates skill elements; each element class has one.
///
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT AbstractElementFactory {
public:
    AbstractElementFactory();
    AbstractElementFactory(const AbstractElementFactory& other);
    AbstractElementFactory& operator=(const AbstractElementFactory& other);
    virtual ~AbstractElementFactory() = 0;

    /// Makes an element with neither a supervisor nor settings; never null.
    [[nodiscard]] virtual std::unique_ptr<Element> createElement() const = 0;
    /// Makes an element with the settings of the other but without its place in the tree; never
    /// null. Throws std::bad_cast when the other was not made by this factory's class.
    [[nodiscard]] virtual std::unique_ptr<Element> copyElement(const Element& other) const = 0;
};

} // namespace corvane::workbench::skill
