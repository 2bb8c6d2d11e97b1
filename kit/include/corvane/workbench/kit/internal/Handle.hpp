#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/internal/Description.hpp>
#include <corvane/workbench/kit/internal/fieldId.hpp>

#include <cstdint>
#include <type_traits>

namespace corvane::workbench::kit::internal {

/// What is being described, for those who say more about it. A small value, good until the next
/// thing is described; as a dependency it stays good for the whole description.
class Handle {
public:
    [[nodiscard]] const bindings::PropertyId& property() const noexcept { return property_; }

protected:
    explicit Handle(Description& description) noexcept
        : description_(&description), serial_(description.serial), property_(description.property) {
    }

    /// Throws std::logic_error when the next thing is being described already.
    [[nodiscard]] Description& description() const {
        if (description_->serial != serial_) {
            throwForAnother();
        }
        return *description_;
    }
    [[nodiscard]] Purpose purpose() const noexcept { return description_->purpose; }
    /// Whether the form is filled in for the purpose. While a description is checked, throws as
    /// description() does.
    [[nodiscard]] bool isFor(Purpose purpose) const {
        if (description_->purpose == Purpose::Check) {
            static_cast<void>(description());
        }
        return description_->purpose == purpose;
    }

    /// Whether the form wants to know what depends on what.
    [[nodiscard]] bool wantsDependencies() const noexcept {
        return purpose() == Purpose::Configure || purpose() == Purpose::Check;
    }
    /// Adds the properties of what something depends on: fields or handles.
    template <class... Dependencies>
    void add(Behaviour::List<bindings::PropertyId>& list,
             const Dependencies&... dependencies) const {
        (list.push_back(idOf(dependencies)), ...);
    }
    template <class T>
    [[nodiscard]] bindings::PropertyId idOf(const T& dependency) const {
        if constexpr (std::is_base_of_v<Handle, T>) {
            return dependency.property();
        } else {
            return fieldId(*description_->owner, &dependency);
        }
    }

private:
    [[noreturn]] void throwForAnother() const;

    Description* description_;
    std::uint32_t serial_;
    bindings::PropertyId property_;
};

} // namespace corvane::workbench::kit::internal
