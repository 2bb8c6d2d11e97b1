#pragma once

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/export.hpp>

#include <concepts>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>
#include <variant>

namespace corvane::workbench::bindings {

/// The callback of a subscriber to a property's value.
///
/// Holds nothing, a callable that wants to know only that the value changed, or one that is told
/// the kind of change and its index. Copies and moves as what it holds.
class CORVANE_WORKBENCH_EXPORT PropertyChangedCallback {
public:
    PropertyChangedCallback() noexcept = default;
    /// Holds nothing, as one made by default.
    PropertyChangedCallback(std::nullptr_t) noexcept {}

    /// From any copyable callable of either shape. A callable of both shapes is told the action and
    /// the index. An empty std::function makes a callback that is false.
    template <class Callable>
        requires(!std::same_as<std::remove_cvref_t<Callable>, PropertyChangedCallback> &&
                 !std::same_as<std::remove_cvref_t<Callable>, std::nullptr_t> &&
                 std::copy_constructible<std::decay_t<Callable>> &&
                 (std::invocable<std::decay_t<Callable>&> ||
                  std::invocable<std::decay_t<Callable>&, Action, std::size_t>))
    PropertyChangedCallback(Callable&& callable) {
        if constexpr (std::invocable<std::decay_t<Callable>&, Action, std::size_t>) {
            callback_.template emplace<Detailed>(std::forward<Callable>(callable));
        } else {
            callback_.template emplace<Plain>(std::forward<Callable>(callable));
        }
    }

    /// Whether a call would reach a callable.
    /// @throws std::bad_variant_access as every operation does, should an exception during
    ///         assignment have destroyed what was held
    [[nodiscard]] explicit operator bool() const;

    /// Calls what is held; a plain callable is not told the action and the index.
    /// @throws std::bad_function_call when nothing, or an empty function, is held
    void operator()(Action action, std::size_t index) const;

    /// Calls what is held, with Action::Update and index 0 where the callable takes them.
    /// @throws std::bad_function_call when nothing, or an empty function, is held
    void operator()() const;

private:
    friend class PropertyController;

    using Plain = std::function<void()>;
    using Detailed = std::function<void(Action, std::size_t)>;

    /// As a call, but does nothing when nothing, or an empty function, is held.
    void callIfSet(Action action, std::size_t index) const {
        if (const auto* const detailed = std::get_if<Detailed>(&callback_)) {
            if (*detailed) [[likely]] {
                (*detailed)(action, index);
            }
        } else if (const auto* const plain = std::get_if<Plain>(&callback_)) {
            if (*plain) [[likely]] {
                (*plain)();
            }
        }
    }

    std::variant<std::nullptr_t, Plain, Detailed> callback_;
};

} // namespace corvane::workbench::bindings
