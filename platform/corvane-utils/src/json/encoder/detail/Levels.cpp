#include <corvane/utils/json/encoder/detail/Levels.hpp>

namespace corvane::utils::json::encoder::detail {

namespace {

/// Enough for most documents.
constexpr std::size_t kFirstSize = 16;

} // namespace

Levels::Levels() : levels_(kFirstSize) {}

Levels::~Levels() = default;

void Levels::grow() {
    levels_.resize(2 * levels_.size());
}

} // namespace corvane::utils::json::encoder::detail
