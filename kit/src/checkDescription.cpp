#include <corvane/workbench/kit/internal/checkDescription.hpp>

#include "forms/CheckingForm.hpp"

#include <string>

namespace corvane::workbench::kit::internal {

void checkDescription(const Subject& subject, std::string_view classId) {
    CheckingForm(subject, "the element class \"" + std::string(classId) + "\"").check();
}

} // namespace corvane::workbench::kit::internal
