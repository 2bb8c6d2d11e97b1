#include <corvane/utils/json/decoder/Name.hpp>

namespace corvane::utils::json::decoder {

Location Name::location() const {
    return tape_ != nullptr ? tape_->location(index_) : location_;
}

} // namespace corvane::utils::json::decoder
