#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <algorithm>

namespace corvane::utils::json::decoder::detail {

Tape::Tape(std::string_view jsonText) noexcept : text(jsonText) {}

Tape::~Tape() = default;

Location Tape::locate(std::size_t offset) const {
    if (lines_.empty()) {
        lines_.push_back(0);
        for (std::size_t end = text.find('\n'); end != std::string_view::npos;
             end = text.find('\n', end + 1)) {
            lines_.push_back(static_cast<std::uint32_t>(end + 1));
        }
    }
    const auto next = std::upper_bound(lines_.begin(), lines_.end(), offset);
    return Location(static_cast<std::uint64_t>(next - lines_.begin()), offset - *(next - 1) + 1);
}

} // namespace corvane::utils::json::decoder::detail
