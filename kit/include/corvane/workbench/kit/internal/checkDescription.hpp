#pragma once

#include <corvane/workbench/kit/internal/Subject.hpp>

#include <string_view>

namespace corvane::workbench::kit::internal {

/// Has an element, and each class of rows in it, describe itself, and throws std::logic_error for
/// the first mistake: two settings of one name or one field, a name that is reserved, a dependency
/// on what is not described, ... `classId` is what the message begins with.
void checkDescription(const Subject& subject, std::string_view classId);

} // namespace corvane::workbench::kit::internal
