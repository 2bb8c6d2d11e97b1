#include <corvane/workbench/kit/fail.hpp>

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <stdexcept>

namespace corvane::workbench::kit {

void fail(const utils::json::decoder::Value& value, const std::string& message) {
    fail(value.location(), message);
}

void fail(const utils::json::decoder::Location& location, const std::string& message) {
    if (location) {
        throw utils::json::decoder::detail::WrappedException<std::runtime_error>(
            location, std::runtime_error(message));
    }
    throw std::runtime_error(message);
}

} // namespace corvane::workbench::kit
