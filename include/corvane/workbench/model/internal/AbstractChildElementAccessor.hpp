#pragma once

#include <corvane/workbench/export.hpp>

#include <cstddef>

namespace corvane::workbench::model {

class ChildElementAccessor;
class Element;

namespace internal {

/// The collection of an element's children, as the workbench keeps it.
///
/// The workbench implements it for each element and hands out ChildElementAccessors of it, which
/// must not outlive it.
class CORVANE_WORKBENCH_EXPORT AbstractChildElementAccessor {
public:
    // The order of the virtual operations is fixed.

    virtual ~AbstractChildElementAccessor();

    /// The number of children now.
    [[nodiscard]] virtual std::size_t elementCount() const = 0;

    /// The child at `index`, which is below elementCount().
    [[nodiscard]] virtual const Element& elementAt(std::size_t index) const = 0;

    /// An accessor of the children that there are now.
    operator ChildElementAccessor() const;

protected:
    AbstractChildElementAccessor() = default;
    AbstractChildElementAccessor(const AbstractChildElementAccessor&) = default;
    AbstractChildElementAccessor& operator=(const AbstractChildElementAccessor&) = default;
};

} // namespace internal
} // namespace corvane::workbench::model
