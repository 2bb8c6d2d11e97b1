#include <corvane/workbench/bindings/CrossReferenceController.hpp>

namespace corvane::workbench::bindings {

CrossReferenceController::~CrossReferenceController() = default;

} // namespace corvane::workbench::bindings
