#pragma once

#include <cstddef>

namespace corvane::workbench::bindings::internal {

/// Where a property is counted while it is in error. Belongs to the property's place, not to its
/// value: a copy counts nowhere, and assignment changes nothing.
class ErrorCounter {
public:
    ErrorCounter() noexcept = default;
    ErrorCounter(const ErrorCounter&) noexcept {}
    ErrorCounter& operator=(const ErrorCounter&) noexcept { return *this; }
    ~ErrorCounter() = default;

    /// From now on the property is counted in `errors`, which null ends.
    void countIn(std::size_t* errors, bool isInError) noexcept {
        change(isInError, false);
        errors_ = errors;
        change(false, isInError);
    }

    void change(bool wasInError, bool isInError) const noexcept {
        if (errors_ != nullptr) {
            *errors_ += static_cast<std::size_t>(isInError);
            *errors_ -= static_cast<std::size_t>(wasInError);
        }
    }

private:
    std::size_t* errors_ = nullptr;
};

} // namespace corvane::workbench::bindings::internal
