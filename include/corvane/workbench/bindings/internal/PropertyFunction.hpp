#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// A property's state or visibility function, safe to replace while it runs.
///
/// A std::function, possibly empty. A function that is replaced while it runs is neither destroyed
/// nor moved before its outermost call has ended; the replacement serves the calls after that.
template <class Result>
class PropertyFunction {
public:
    using Function = std::function<Result()>;

    PropertyFunction() = default;
    /// Copies what later calls would use.
    PropertyFunction(const PropertyFunction& other)
        : function_(other.replacement_ ? *other.replacement_ : other.function_) {}
    PropertyFunction(PropertyFunction&& other) noexcept : function_(std::move(other.function_)) {
        other.function_ = nullptr;
    }
    PropertyFunction& operator=(const PropertyFunction& other) {
        replace(PropertyFunction(other).function_);
        return *this;
    }
    PropertyFunction& operator=(PropertyFunction&& other) noexcept {
        if (this != &other) {
            replace(std::exchange(other.function_, nullptr));
        }
        return *this;
    }
    ~PropertyFunction() = default;

    [[nodiscard]] explicit operator bool() const noexcept { return static_cast<bool>(function_); }

    void replace(Function function) noexcept {
        if (calls_ != 0) {
            replacement_ = std::move(function);
        } else {
            // The old target dies last, when this object is as it will stay.
            function_.swap(function);
        }
    }

    /// Calls the function, which must be set.
    [[nodiscard]] Result operator()() {
        const Call call(*this);
        return function_();
    }

private:
    class Call {
    public:
        explicit Call(PropertyFunction& owner) noexcept : owner_(owner) { ++owner_.calls_; }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call() {
            if (--owner_.calls_ == 0 && owner_.replacement_) {
                Function replacement = std::move(*owner_.replacement_);
                owner_.replacement_.reset();
                owner_.function_.swap(replacement);
            }
        }

    private:
        PropertyFunction& owner_;
    };

    Function function_;
    std::optional<Function> replacement_;
    std::size_t calls_ = 0;
};

} // namespace corvane::workbench::bindings::internal
