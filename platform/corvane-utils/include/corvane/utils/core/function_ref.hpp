#pragma once

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace corvane::utils::core {

/// A reference to something callable, with the meaning of C++26's std::function_ref (without its
/// constant-argument constructors). It neither copies nor owns the callable: pass it down the
/// stack only. It is never null. Calling is as thread-safe as the callable.
template <class Signature>
class function_ref;

namespace detail {

/// The callable's address: functions and objects do not share a pointer type.
union CallableAddress {
    const void* object;
    void (*function)();
};

/// What the four forms of function_ref share; Self is the form.
template <class Self, bool Const, bool Noexcept, class R, class... Args>
class FunctionReference {
    template <class T>
    using Qualified = std::conditional_t<Const, const T, T>;
    template <class T>
    static constexpr bool kIsInvocable = Noexcept ? std::is_nothrow_invocable_r_v<R, T, Args...>
                                                  : std::is_invocable_r_v<R, T, Args...>;

public:
    /// Refers to a function. @pre function is not null.
    template <class F>
        requires(std::is_function_v<F> && kIsInvocable<F*>)
    FunctionReference(F* function) noexcept
        : call_([](CallableAddress callable, Args... args) noexcept(Noexcept) -> R {
              return invoke(*reinterpret_cast<F*>(callable.function), std::forward<Args>(args)...);
          }) {
        callable_.function = reinterpret_cast<void (*)()>(function);
    }

    /// Refers to an object, which must outlive every call.
    template <class F, class T = std::remove_reference_t<F>>
        requires(!std::is_same_v<std::remove_cvref_t<F>, Self> && !std::is_member_pointer_v<T> &&
                 !std::is_function_v<T> && kIsInvocable<Qualified<T>&>)
    FunctionReference(F&& object) noexcept
        : call_([](CallableAddress callable, Args... args) noexcept(Noexcept) -> R {
              // The object that was bound is const exactly when T is.
              return invoke(*static_cast<Qualified<T>*>(const_cast<void*>(callable.object)),
                            std::forward<Args>(args)...);
          }) {
        callable_.object = std::addressof(object);
    }

    R operator()(Args... args) const noexcept(Noexcept) {
        return call_(callable_, std::forward<Args>(args)...);
    }

private:
    template <class F>
    static R invoke(F& callable, Args&&... args) noexcept(Noexcept) {
        if constexpr (std::is_void_v<R>) {
            static_cast<void>(std::invoke(callable, std::forward<Args>(args)...));
        } else {
            return std::invoke(callable, std::forward<Args>(args)...);
        }
    }

    CallableAddress callable_;
    R (*call_)(CallableAddress, Args...) noexcept(Noexcept);
};

/// Assigning a callable would leave a reference to a temporary; only what is itself a reference
/// (a function_ref of the same form or a pointer to a function) may be assigned.
template <class T, class Self>
concept Dangling = !std::is_same_v<T, Self> && !std::is_pointer_v<T>;

} // namespace detail

/// To a callable that is called as it is, const or not.
template <class R, class... Args>
class function_ref<R(Args...)>
    : public detail::FunctionReference<function_ref<R(Args...)>, false, false, R, Args...> {
public:
    using detail::FunctionReference<function_ref, false, false, R, Args...>::FunctionReference;
    template <detail::Dangling<function_ref> T>
    function_ref& operator=(T) = delete;
};

/// To a callable that is called as a const object.
template <class R, class... Args>
class function_ref<R(Args...) const>
    : public detail::FunctionReference<function_ref<R(Args...) const>, true, false, R, Args...> {
public:
    using detail::FunctionReference<function_ref, true, false, R, Args...>::FunctionReference;
    template <detail::Dangling<function_ref> T>
    function_ref& operator=(T) = delete;
};

/// To a callable that does not throw when it is called as it is, const or not.
template <class R, class... Args>
class function_ref<R(Args...) noexcept>
    : public detail::FunctionReference<function_ref<R(Args...) noexcept>, false, true, R, Args...> {
public:
    using detail::FunctionReference<function_ref, false, true, R, Args...>::FunctionReference;
    template <detail::Dangling<function_ref> T>
    function_ref& operator=(T) = delete;
};

/// To a callable that does not throw when it is called as a const object.
template <class R, class... Args>
class function_ref<R(Args...) const noexcept>
    : public detail::FunctionReference<function_ref<R(Args...) const noexcept>, true, true, R,
                                       Args...> {
public:
    using detail::FunctionReference<function_ref, true, true, R, Args...>::FunctionReference;
    template <detail::Dangling<function_ref> T>
    function_ref& operator=(T) = delete;
};

/// A pointer to a function determines the signature.
template <class F>
    requires std::is_function_v<F>
function_ref(F*) -> function_ref<F>;

} // namespace corvane::utils::core
