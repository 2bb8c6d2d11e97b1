#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>

namespace corvane::utils::json::decoder {

/// What every error in a JSON text can be caught as. It is not a std::exception itself: the class
/// that is thrown (detail::WrappedException) derives from one besides.
class CORVANE_UTILS_EXPORT Exception {
public:
    /// The place may be unknown.
    explicit Exception(const Location& location) noexcept : location_(location) {}
    virtual ~Exception();

    /// Where in the text the error is.
    [[nodiscard]] const Location& location() const noexcept { return location_; }
    /// The message alone, without the location.
    [[nodiscard]] virtual const char* message() const noexcept = 0;

protected:
    /// Copied by the class that is thrown, never on its own.
    /// @{
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    /// @}

private:
    Location location_;
};

} // namespace corvane::utils::json::decoder
