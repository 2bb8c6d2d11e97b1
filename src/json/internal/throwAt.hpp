#pragma once

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <stdexcept>
#include <utility>

namespace corvane::workbench::json::internal {

/// Throws the error as the decoder's located exception, or, for a place that is not known, its
/// text as a plain std::logic_error.
template <class Error>
[[noreturn]] void throwAt(const utils::json::decoder::Location& location, Error error) {
    if (location) {
        throw utils::json::decoder::detail::WrappedException<Error>(location, std::move(error));
    }
    throw std::logic_error(error.what());
}

} // namespace corvane::workbench::json::internal
