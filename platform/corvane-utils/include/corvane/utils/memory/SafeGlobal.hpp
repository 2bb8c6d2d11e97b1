#pragma once

#include <corvane/utils/memory/detail/ExitList.hpp>

#include <atomic>
#include <cstddef>
#include <new>

namespace corvane::utils::memory {

/// A global object that is constructed on first use, however early that is, and destroyed at
/// process exit. Declare it as a static object: it is constant-initialised, so no order of static
/// initialisation matters. The library that holds it must stay loaded until the process exits.
/// First use is thread-safe; what happens to the object afterwards is its own affair.
template <class T>
class SafeGlobal {
public:
    constexpr SafeGlobal() noexcept = default;
    SafeGlobal(const SafeGlobal&) = delete;
    SafeGlobal& operator=(const SafeGlobal&) = delete;

    /// The object; the first call constructs it. When its constructor throws, the exception
    /// propagates and the next call tries again.
    [[nodiscard]] T& get() {
        if (state_.load(std::memory_order_acquire) != State::Ready) {
            makeReady();
        }
        return *std::launder(reinterpret_cast<T*>(storage_));
    }
    /// What get() returns.
    /// @{
    [[nodiscard]] T& operator*() { return get(); }
    [[nodiscard]] T* operator->() { return &get(); }
    /// @}

private:
    enum class State { Empty, Constructing, Ready };

    // Not std::call_once, which on some platforms never returns after an exception.
    void makeReady() {
        for (;;) {
            State state = State::Empty;
            if (state_.compare_exchange_strong(state, State::Constructing)) {
                return construct();
            }
            if (state == State::Ready) {
                return;
            }
            state_.wait(State::Constructing);
        }
    }

    void construct() {
        try {
            exit_.object = ::new (static_cast<void*>(storage_)) T();
        } catch (...) {
            setState(State::Empty);
            throw;
        }
        exit_.destroy = [](void* object) { static_cast<T*>(object)->~T(); };
        detail::destroyAtExit(exit_);
        setState(State::Ready);
    }

    void setState(State state) noexcept {
        state_.store(state, std::memory_order_release);
        state_.notify_all();
    }

    std::atomic<State> state_{State::Empty};
    detail::ExitNode exit_;
    alignas(T) std::byte storage_[sizeof(T)]{};
};

} // namespace corvane::utils::memory
