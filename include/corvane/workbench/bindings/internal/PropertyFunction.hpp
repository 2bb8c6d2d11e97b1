#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// A property's state or visibility function, safe to replace while it runs.
///
/// Takes one pointer; an empty one takes nothing else. A function that is replaced while it runs is
/// neither destroyed nor moved before its outermost call has ended.
template <class Result>
class PropertyFunction {
public:
    PropertyFunction() noexcept = default;
    /// An empty std::function makes an empty one.
    explicit PropertyFunction(std::function<Result()>&& function)
        : shared_(function ? new Shared{.function = std::move(function)} : nullptr) {}
    PropertyFunction(const PropertyFunction& other)
        : shared_(other ? new Shared{.function = other.shared_->function} : nullptr) {}
    PropertyFunction(PropertyFunction&& other) noexcept
        : shared_(std::exchange(other.shared_, nullptr)) {}
    PropertyFunction& operator=(PropertyFunction other) noexcept {
        std::swap(shared_, other.shared_);
        return *this;
    }
    ~PropertyFunction() { release(shared_); }

    [[nodiscard]] explicit operator bool() const noexcept { return shared_ != nullptr; }

    /// Calls the function, which must be set.
    [[nodiscard]] Result operator()() const {
        const Call call(*shared_);
        return shared_->function();
    }

private:
    struct Shared {
        std::function<Result()> function;
        std::size_t users = 1; // the owner and each call
    };

    class Call {
    public:
        explicit Call(Shared& shared) noexcept : shared_(shared) { ++shared_.users; }
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        ~Call() { release(&shared_); }

    private:
        Shared& shared_;
    };

    static void release(Shared* shared) noexcept {
        if (shared != nullptr && --shared->users == 0) {
            delete shared;
        }
    }

    Shared* shared_ = nullptr;
};

} // namespace corvane::workbench::bindings::internal
