#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/kit/internal/checkDescription.hpp>
#include <corvane/workbench/kit/uuid.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace corvane::workbench::kit {

/// What an element class is, in one statement. See skill::Element::Class.
struct ClassDescription {
    /// Stands in configuration files; unique among all skills, the same in every version.
    Text id{};
    /// The same in every version: `"0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a03"_uuid`.
    utils::core::Uuid uuid{};
    /// As shown to the user, translated; also the type text of the elements.
    Text displayName{};
    /// What elements of the class are for, in a sentence for the user.
    Text description{};
    /// The category of its elements.
    model::ElementCategory category{};
    /// The categories of the elements that it takes as children.
    utils::core::Flags<model::ElementCategory> children{};
    /// Proposed for a new element; without it the display name as it stands in the source.
    Text defaultName{};
};

/// What all classes of described elements have in common.
class BasicElementClass : public skill::Element::Class {
public:
    BasicElementClass(const BasicElementClass&) = delete;
    BasicElementClass& operator=(const BasicElementClass&) = delete;

    [[nodiscard]] std::string_view id() const override;
    [[nodiscard]] utils::core::Uuid uuid() const override;
    [[nodiscard]] std::wstring displayName() const override;
    [[nodiscard]] std::wstring description() const override;
    [[nodiscard]] model::ElementCategory category() const override;
    /// Whether the class's category is among the `children` of the description.
    [[nodiscard]] bool allowChildElement(const Class& childClass) const override;
    [[nodiscard]] std::string defaultName() const override;

    /// Looks for mistakes in the description of the class and of its elements. Throws
    /// std::logic_error with a sentence for the first one.
    virtual void check() const = 0;

protected:
    /// Keeps a copy of the description.
    explicit BasicElementClass(const ClassDescription& description);
    ~BasicElementClass() override = default;

    /// The part of check() that looks at the description of the class alone.
    void checkClass() const;

private:
    ClassDescription description_;
};

/// A class of elements of the type T, with its factory:
///
///     const kit::ElementClass<Pump> kPump({.id = "PumpStation.Pump", ...});
template <class T>
class ElementClass : public BasicElementClass {
public:
    /// Keeps a copy of the description.
    explicit ElementClass(const ClassDescription& description) : BasicElementClass(description) {}
    ~ElementClass() override = default;

    [[nodiscard]] const skill::AbstractElementFactory& factory() const override { return factory_; }

    void check() const override {
        checkClass();
        if constexpr (std::is_base_of_v<Element, T>) {
            T element;
            internal::checkDescription(static_cast<Element&>(element).subject(), id());
        }
    }

private:
    class Factory final : public skill::AbstractElementFactory {
        [[nodiscard]] std::unique_ptr<skill::Element> createElement() const override {
            return std::make_unique<T>();
        }
        [[nodiscard]] std::unique_ptr<skill::Element>
        copyElement(const skill::Element& other) const override {
            return std::make_unique<T>(dynamic_cast<const T&>(other));
        }
    };

    Factory factory_;
};

} // namespace corvane::workbench::kit
