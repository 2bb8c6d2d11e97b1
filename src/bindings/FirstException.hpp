#pragma once

#include <exception>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// Runs steps that must all be taken, whichever of them throws, and reports the first exception
/// afterwards.
class FirstException {
public:
    /// Runs a step and keeps its exception unless one is kept already. Returns whether the step
    /// ended normally.
    template <class Step>
    bool run(Step&& step) noexcept {
        try {
            std::forward<Step>(step)();
            return true;
        } catch (...) {
            if (!exception_) {
                exception_ = std::current_exception();
            }
            return false;
        }
    }

    /// Throws what was kept, if anything.
    void rethrow() const {
        if (exception_) {
            std::rethrow_exception(exception_);
        }
    }

private:
    std::exception_ptr exception_;
};

} // namespace corvane::workbench::bindings::internal
