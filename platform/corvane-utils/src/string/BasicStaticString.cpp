#include <corvane/utils/string/BasicStaticString.hpp>

#include <stdexcept>
#include <string>

namespace corvane::utils::string::detail {

void throwStaticStringLengthError(std::size_t size, std::size_t capacity) {
    throw std::length_error("corvane::utils::string::BasicStaticString: size of " +
                            std::to_string(size) + " exceeds capacity of " +
                            std::to_string(capacity));
}

} // namespace corvane::utils::string::detail
