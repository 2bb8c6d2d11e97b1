#include <corvane/utils/json/decoder/Array.hpp>

namespace corvane::utils::json::decoder {

Location Array::location() const {
    return tape_->location(index_);
}

} // namespace corvane::utils::json::decoder
