#include <corvane/workbench/model/internal/AbstractChildElementAccessor.hpp>

#include <corvane/workbench/model/ChildElementAccessor.hpp>

namespace corvane::workbench::model::internal {

AbstractChildElementAccessor::~AbstractChildElementAccessor() = default;

AbstractChildElementAccessor::operator ChildElementAccessor() const {
    return ChildElementAccessor(ChildElementAccessor::kInternalConstructor, *this);
}

} // namespace corvane::workbench::model::internal
