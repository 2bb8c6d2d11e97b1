#include "translationContext.hpp"

namespace corvane::workbench::kit::internal {

namespace {

// Constant-initialised, so that it is there before any static object of the skill.
constinit Text context;

} // namespace

Text translationContext() noexcept {
    return context;
}

void setTranslationContext(Text newContext) noexcept {
    context = newContext;
}

} // namespace corvane::workbench::kit::internal
