#pragma once

// What the state of a described property is made of.

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/kit/State.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/internal/SettingKind.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>

namespace corvane::workbench::model::internal {
class BasicElementReference;
}

namespace corvane::workbench::kit::internal {

/// The message of a rule that is broken, translated.
[[nodiscard]] State broken(const char* message);

/// A condition and what is said when it does not hold. Small, because there is one per property.
template <class Condition>
struct ConditionRule {
    [[no_unique_address]] Condition condition;
    const char* message;

    [[nodiscard]] State operator()() { return condition() ? State() : broken(message); }
};

/// The same for a condition on the value.
template <class Condition, class T>
struct ValueRule {
    [[no_unique_address]] Condition condition;
    const T* value;
    const char* message;

    [[nodiscard]] State operator()() { return condition(*value) ? State() : broken(message); }
};

/// The condition that a value is not that of an object that has just been made.
template <class T>
struct IsNotEmpty {
    [[nodiscard]] bool operator()(const T& value) const {
        if constexpr (requires { value.empty(); }) {
            return !value.empty();
        } else if constexpr (std::derived_from<T, bindings::CrossReferenceController>) {
            return static_cast<bool>(value);
        } else {
            return !(value == T());
        }
    }
};

[[nodiscard]] State outOfRange(const char* message, double lowest, double highest);
[[nodiscard]] State outOfRange(const char* message, std::int64_t lowest, std::int64_t highest);
[[nodiscard]] State outOfRange(const char* message, std::uint64_t lowest, std::uint64_t highest);

template <class Number>
[[nodiscard]] std::function<State()> rangeRule(const Number& value, Number lowest, Number highest,
                                               const char* message) {
    using Widest = std::conditional_t<
        std::floating_point<Number>, double,
        std::conditional_t<std::is_signed_v<Number>, std::int64_t, std::uint64_t>>;
    return [&value, lowest, highest, message]() -> State {
        if (value >= lowest && value <= highest) {
            return {};
        }
        return outOfRange(message, static_cast<Widest>(lowest), static_cast<Widest>(highest));
    };
}

[[nodiscard]] std::function<State()>
classRule(const model::internal::BasicElementReference& reference,
          const skill::Element::Class& elementClass, const char* message);
[[nodiscard]] std::function<State()>
categoryRule(const model::internal::BasicElementReference& reference,
             utils::core::Flags<model::ElementCategory> categories, const char* message);

/// A number, or what a function without parameters returns.
template <class Step>
[[nodiscard]] auto valueOf(Step& step) {
    if constexpr (std::invocable<Step&>) {
        return step();
    } else {
        return step;
    }
}

} // namespace corvane::workbench::kit::internal
