#include <corvane/utils/json/decoder/Array.hpp>

namespace corvane::utils::json::decoder {

Location Array::location() const {
    return tape_->locate((*tape_)[index_].offset);
}

} // namespace corvane::utils::json::decoder
