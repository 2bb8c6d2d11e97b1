#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <string>
#include <string_view>

namespace pump_station {

/// Describes one class of elements to the workbench. All element classes of this skill differ only
/// in what they say about themselves, so one class, filled in differently, serves them all.
class ElementClass final : public corvane::workbench::skill::Element::Class {
public:
    /// What an element class says about itself; the texts are literals.
    struct Description {
        std::string_view id;
        std::string_view uuid;
        std::string_view displayName;
        std::string_view description;
        corvane::workbench::model::ElementCategory category;
        /// The categories of this skill's elements that may be children.
        corvane::utils::core::Flags<corvane::workbench::model::ElementCategory> children;
        std::string_view defaultName;
    };

    /// The factory must live as long as the class.
    ElementClass(const Description& description,
                 const corvane::workbench::skill::AbstractElementFactory& factory);

    [[nodiscard]] std::string_view id() const override;
    [[nodiscard]] corvane::utils::core::Uuid uuid() const override;
    [[nodiscard]] std::wstring displayName() const override;
    [[nodiscard]] std::wstring description() const override;
    [[nodiscard]] corvane::workbench::model::ElementCategory category() const override;
    [[nodiscard]] const corvane::workbench::skill::AbstractElementFactory& factory() const override;
    [[nodiscard]] bool allowChildElement(const Class& childClass) const override;
    [[nodiscard]] std::string defaultName() const override;

private:
    Description description_;
    const corvane::workbench::skill::AbstractElementFactory& factory_;
};

} // namespace pump_station
