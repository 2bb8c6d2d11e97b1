#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <format>
#include <stdexcept>

namespace corvane::workbench::config {

void throwUnknownParameterError(const utils::json::decoder::Name& name) {
    namespace decoder = utils::json::decoder;
    std::runtime_error error(std::format("unknown parameter \"{}\"", name.text()));
    if (const decoder::Location location = name.location()) {
        throw decoder::detail::WrappedException<std::runtime_error>(location, std::move(error));
    }
    throw error;
}

} // namespace corvane::workbench::config
