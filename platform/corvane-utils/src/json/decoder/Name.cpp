#include <corvane/utils/json/decoder/Name.hpp>

namespace corvane::utils::json::decoder {

Location Name::location() const {
    return tape_ != nullptr ? tape_->locate(offset_) : location_;
}

} // namespace corvane::utils::json::decoder
