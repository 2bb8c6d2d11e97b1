// A global object that is constructed on first use, however early that is, and destroyed at
// process exit. Declare it as a static object: it is constant-initialised, so no order of static
// initialisation matters. The library that holds it must stay loaded until the process exits.
// First use is thread-safe; what happens to the object afterwards is its own affair.
#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>
#include <new>

#include <corvane/utils/memory/detail/ExitList.hpp>

namespace corvane::utils::memory {

template <class T>
class SafeGlobal {
public:
    constexpr SafeGlobal() noexcept = default;
    SafeGlobal(const SafeGlobal&) = delete;
    SafeGlobal& operator=(const SafeGlobal&) = delete;

    /// The object; the first call constructs it. When its constructor throws, the exception
    /// propagates and the next call tries again.
    [[nodiscard]] T& get() {
        T* object = object_.load(std::memory_order_acquire);
        if (object == nullptr) {
            std::call_once(once_, [this] { construct(); });
            object = object_.load(std::memory_order_acquire);
        }
        return *object;
    }
    [[nodiscard]] T& operator*() { return get(); }
    [[nodiscard]] T* operator->() { return &get(); }

private:
    void construct() {
        T* const object = ::new (static_cast<void*>(storage_)) T();
        exit_.object = object;
        exit_.destroy = [](void* pointer) { static_cast<T*>(pointer)->~T(); };
        detail::destroyAtExit(exit_);
        object_.store(object, std::memory_order_release);
    }

    std::atomic<T*> object_{nullptr};
    std::once_flag once_;
    detail::ExitNode exit_;
    alignas(T) std::byte storage_[sizeof(T)]{};
};

} // namespace corvane::utils::memory
