#pragma once

// What can be said about the things on a form. Each operation returns the handle again, so that a
// description reads as one sentence.

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/kit/State.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/internal/Description.hpp>
#include <corvane/workbench/kit/internal/Handle.hpp>
#include <corvane/workbench/kit/internal/rules.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <concepts>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <type_traits>
#include <utility>

namespace corvane::workbench::chrono {
class Duration;
}
namespace corvane::workbench::json {
class Object;
}

namespace corvane::workbench::kit {

class Form;
template <class T>
class Setting;

namespace internal {

/// The type of a field, given by itself or by a handle.
template <class T>
struct FieldOf {
    using Type = T;
};
template <class T>
struct FieldOf<Setting<T>> {
    using Type = T;
};

/// Whether a field is changed by others than its editor: references and lists of rows are.
template <class Dependency>
inline constexpr bool kChangesByItself =
    std::is_base_of_v<bindings::CrossReferenceController, typename FieldOf<Dependency>::Type> ||
    std::is_base_of_v<RowList, typename FieldOf<Dependency>::Type>;

} // namespace internal

/// A setting on a form. Where an operation takes dependencies, these are the fields of other
/// settings (or handles), whose changes make the setting look at itself again; its own changes
/// always do.
template <class T>
class Setting : public internal::Handle {
    static constexpr bool kIsReference = std::is_base_of_v<bindings::CrossReferenceController, T>;
    static constexpr bool kIsRows = std::is_base_of_v<internal::RowList, T>;
    static constexpr bool kIsNumber = std::is_arithmetic_v<T> && !std::same_as<T, bool>;

public:
    /// @name Values
    /// @{

    /// The value of a new element, and of one whose file leaves the setting out.
    Setting initially(T value) const
        requires(!kIsReference && !kIsRows)
    {
        internal::Description& description = this->description();
        if (isFor(internal::Purpose::Save)) {
            description.isInitial = *field_ == value;
        } else if (isFor(internal::Purpose::Load) || isFor(internal::Purpose::MakeDefault)) {
            *field_ = std::move(value);
        }
        description.hasInitialValue = true;
        return *this;
    }

    /// The function makes the value of a new element; one whose file leaves the setting out has the
    /// value that the field starts with.
    template <std::invocable Function>
    Setting generated(Function function) const
        requires(!kIsReference && !kIsRows)
    {
        if (isFor(internal::Purpose::MakeDefault)) {
            *field_ = function();
        }
        return *this;
    }

    /// The unit, shown behind the display name in parentheses.
    Setting unit(Text unit) const {
        if (auto& behaviour = description().behaviour) {
            behaviour->unit = unit;
        }
        return *this;
    }
    /// A sentence that explains the setting to the user.
    Setting toolTip(Text sentence) const {
        if (auto& behaviour = description().behaviour) {
            behaviour->toolTip = sentence;
        }
        return *this;
    }
    /// The user sees the value but cannot set it.
    Setting readOnly() const {
        if (auto& behaviour = description().behaviour) {
            behaviour->isReadOnly = true;
        }
        return *this;
    }

    /// @}
    /// @name Rules
    /// What is wrong with a value is said by the first rule that it breaks, in the order of the
    /// description. A value that breaks a rule is kept, and saved.
    /// @{

    /// The condition holds: a function without parameters, or one that takes the value.
    template <class Condition, class... Dependencies>
        requires std::predicate<Condition&> || std::predicate<Condition&, const T&>
    Setting rule(Condition condition, Text message, const Dependencies&... dependencies) const {
        if (isFor(internal::Purpose::Configure)) {
            if constexpr (std::predicate<Condition&>) {
                description().behaviour->rules.emplace_back(
                    internal::ConditionRule<Condition>{std::move(condition), message.data()});
            } else {
                description().behaviour->rules.emplace_back(internal::ValueRule<Condition, T>{
                    std::move(condition), field_, message.data()});
            }
        }
        return dependingOn(dependencies...);
    }
    /// The function returns the state: success, or the message.
    template <class Function, class... Dependencies>
        requires std::same_as<std::invoke_result_t<Function&>, State>
    Setting rule(Function function, const Dependencies&... dependencies) const {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->rules.emplace_back(std::move(function));
        }
        return dependingOn(dependencies...);
    }
    /// The number lies between the two, both included.
    Setting range(T lowest, T highest, Text message = {}) const
        requires kIsNumber
    {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->rules.emplace_back(
                internal::rangeRule(*field_, lowest, highest, message.data()));
        }
        return *this;
    }
    /// The value is not empty: a text, a time stamp, a UUID, a reference, a list.
    Setting required(Text message = "Enter a value.") const {
        if (isFor(internal::Purpose::Configure)) {
            internal::Description& description = this->description();
            description.behaviour->rules.insert(
                description.behaviour->rules.begin(),
                internal::ValueRule<internal::IsNotEmpty<T>, T>{{}, field_, message.data()});
            description.behaviour->isRequired = true;
        }
        return *this;
    }

    /// @}
    /// @name Visibility, saving
    /// @{

    /// The user sees the setting while the condition holds. What is invisible is never wrong.
    template <std::predicate Condition, class... Dependencies>
    Setting visibleIf(Condition condition, const Dependencies&... dependencies) const {
        if (isFor(internal::Purpose::Save)) {
            description().isVisible = condition();
        } else if (isFor(internal::Purpose::Configure)) {
            description().behaviour->visibility = std::move(condition);
        }
        if (wantsDependencies()) {
            add(description().behaviour->visibilityDependencies, dependencies...);
        }
        return *this;
    }
    /// Files have the setting only while it is visible (otherwise always).
    Setting savedWhenVisible() const {
        description().saved = internal::Saved::WhenVisible;
        return *this;
    }
    /// Files have the setting only when it is not initially() what it is; without such a value,
    /// when it is not empty.
    Setting savedWhenNotInitial() const {
        description().saved = internal::Saved::WhenNotInitial;
        return *this;
    }

    /// @}
    /// @name Notification
    /// @{

    /// The shown value follows from other settings as well: it is published when they are.
    template <class... Dependencies>
    Setting follows(const Dependencies&... dependencies) const {
        if (wantsDependencies()) {
            add(description().behaviour->valueDependencies, dependencies...);
        }
        return *this;
    }
    /// A property of the enclosing container that is published whenever this setting is. A row's
    /// settings publish its list without being told.
    Setting raises(const bindings::PropertyId& property) const {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->raisedProperties.push_back(property);
        }
        return *this;
    }
    /// What is done after a change by the user, or by changed(), when everybody has heard of it. A
    /// reference and a list of rows also change otherwise: for them it is done after each change,
    /// when their subscribers have heard of it.
    template <std::invocable Action>
    Setting then(Action action) const {
        if (isFor(internal::kChangesByItself<T> ? internal::Purpose::Configure
                                                : internal::Purpose::Change)) {
            description().behaviour->actions.emplace_back(std::move(action));
        }
        return *this;
    }

    /// @}
    /// @name Kinds of their own
    /// @{

    /// An early form of the file had a count of microseconds.
    Setting acceptsMicroseconds() const
        requires std::same_as<T, chrono::Duration>
    {
        description().field.acceptsMicroseconds = true;
        return *this;
    }
    /// Refuses the member names that elements reserve for themselves, so that the settings could
    /// one day stand beside them.
    Setting refusesReservedNames() const
        requires std::same_as<T, json::Object>
    {
        description().field.refusesReservedNames = true;
        return *this;
    }
    /// The reference may be empty.
    Setting optional() const
        requires kIsReference
    {
        if (auto& behaviour = description().behaviour) {
            behaviour->isOptional = true;
        }
        return *this;
    }
    /// The reference leads to an element of the class, or to a member of one. A message may have a
    /// "{}" for the reference's key.
    Setting to(const skill::Element::Class& elementClass, Text message = {}) const
        requires kIsReference
    {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->rules.emplace_back(
                internal::classRule(*field_, elementClass, message.data()));
        }
        return *this;
    }
    /// The same for an element of one of the categories.
    Setting to(utils::core::Flags<model::ElementCategory> categories, Text message = {}) const
        requires kIsReference
    {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->rules.emplace_back(
                internal::categoryRule(*field_, categories, message.data()));
        }
        return *this;
    }
    /// A new row continues the numbers in this field of the rows by a step (see
    /// bindings::functional::Offset). The step is a number or a function that returns one.
    template <class RowType, class Number, class Step>
    Setting proposes(Number RowType::* field, Step step) const
        requires(kIsRows && std::same_as<typename T::RowType, RowType>)
    {
        if (isFor(internal::Purpose::Propose)) {
            description().behaviour->proposal = [field, step, rows = field_](Row& row,
                                                                             std::size_t index) {
                static_cast<RowType&>(row).*field =
                    rows->next(field, index, internal::valueOf(step));
            };
        }
        return *this;
    }
    /// The function prepares a new row before it is inserted at the index.
    template <class Function>
    Setting proposes(Function prepare) const
        requires(kIsRows && std::invocable<Function&, typename T::RowType&, std::size_t>)
    {
        if (isFor(internal::Purpose::Propose)) {
            description().behaviour->proposal = [prepare = std::move(prepare)](Row& row,
                                                                               std::size_t index) {
                prepare(static_cast<typename T::RowType&>(row), index);
            };
        }
        return *this;
    }

    /// @}

private:
    friend class Form;
    Setting(internal::Description& description, T& field) noexcept
        : Handle(description), field_(&field) {}

    template <class... Dependencies>
    Setting dependingOn(const Dependencies&... dependencies) const {
        if (wantsDependencies()) {
            add(description().behaviour->stateDependencies, dependencies...);
        }
        return *this;
    }

    T* field_;
};

/// A text that follows from settings.
class Derived : public internal::Handle {
public:
    /// The settings from which it follows: it is published when they are.
    template <class... Dependencies>
    Derived follows(const Dependencies&... dependencies) const {
        if (wantsDependencies()) {
            add(description().behaviour->valueDependencies, dependencies...);
        }
        return *this;
    }
    /// The user sees it while the condition holds.
    template <std::predicate Condition, class... Dependencies>
    Derived visibleIf(Condition condition, const Dependencies&... dependencies) const {
        if (isFor(internal::Purpose::Configure)) {
            description().behaviour->visibility = std::move(condition);
        }
        if (wantsDependencies()) {
            add(description().behaviour->visibilityDependencies, dependencies...);
        }
        return *this;
    }
    /// The unit, shown behind the display name in parentheses.
    Derived unit(Text unit) const {
        if (auto& behaviour = description().behaviour) {
            behaviour->unit = unit;
        }
        return *this;
    }
    /// A sentence that explains it to the user.
    Derived toolTip(Text sentence) const {
        if (auto& behaviour = description().behaviour) {
            behaviour->toolTip = sentence;
        }
        return *this;
    }

private:
    friend class Form;
    using Handle::Handle;
};

/// An attribute, event or task of the element.
class Member : public internal::Handle {
public:
    /// The element has it while the condition holds. When one of the settings changes, the
    /// workbench is asked to look at the members again.
    template <std::predicate Condition, class... Dependencies>
    Member onlyIf(Condition condition, const Dependencies&... dependencies) const {
        switch (purpose()) {
        case internal::Purpose::Attributes:
        case internal::Purpose::Events:
        case internal::Purpose::Tasks:
            description().applies = condition();
            break;
        case internal::Purpose::Configure:
            (addIfItChangesByItself(dependencies), ...);
            break;
        case internal::Purpose::Change:
            (addIfItIsSet(dependencies), ...);
            break;
        case internal::Purpose::Check:
            add(description().behaviour->memberDependencies, dependencies...);
            break;
        default:
            break;
        }
        return *this;
    }

private:
    friend class Form;
    using Handle::Handle;

    template <class T>
    void addIfItChangesByItself(const T& dependency) const {
        if constexpr (internal::kChangesByItself<T>) {
            add(description().behaviour->memberDependencies, dependency);
        }
    }
    template <class T>
    void addIfItIsSet(const T& dependency) const {
        if constexpr (!internal::kChangesByItself<T>) {
            add(description().behaviour->memberDependencies, dependency);
        }
    }
};

} // namespace corvane::workbench::kit
