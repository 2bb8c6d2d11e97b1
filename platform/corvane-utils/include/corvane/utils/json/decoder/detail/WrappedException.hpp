#pragma once

#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Location.hpp>

#include <exception>
#include <type_traits>
#include <utility>

namespace corvane::utils::json::decoder::detail {

/// A standard exception together with the place in the JSON text that it is about.
///
/// Is caught as E and as decoder::Exception; what() is E's text alone.
template <class E>
class WrappedException : public E, public Exception {
public:
    static_assert(std::is_base_of_v<std::exception, E>);

    WrappedException(const Location& location, E exception)
        : E(std::move(exception)), Exception(location) {}

    [[nodiscard]] const char* message() const noexcept override { return E::what(); }
};

} // namespace corvane::utils::json::decoder::detail
