#include <corvane/utils/json/decoder/Exception.hpp>

namespace corvane::utils::json::decoder {

Exception::~Exception() = default;

} // namespace corvane::utils::json::decoder
