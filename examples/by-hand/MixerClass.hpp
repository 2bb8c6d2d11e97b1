#pragma once

#include "names.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/Element.hpp>

namespace by_hand {

class MixerFactory final : public workbench::skill::AbstractElementFactory {
public:
    std::unique_ptr<workbench::skill::Element> createElement() const override;
    std::unique_ptr<workbench::skill::Element>
    copyElement(const workbench::skill::Element& other) const override;
};

/// Describes mixers to the workbench, and makes them.
class MixerClass final : public workbench::skill::Element::Class {
public:
    std::string_view id() const override { return "FirstSkill.Mixer"; }
    utils::core::Uuid uuid() const override;
    std::wstring displayName() const override { return L"Mixer"; }
    std::wstring description() const override { return L"Works through the steps of a recipe."; }
    workbench::model::ElementCategory category() const override {
        return workbench::model::ElementCategory::Device;
    }
    const workbench::skill::AbstractElementFactory& factory() const override { return factory_; }
    std::string defaultName() const override { return "Mixer"; }

private:
    MixerFactory factory_;
};

} // namespace by_hand
