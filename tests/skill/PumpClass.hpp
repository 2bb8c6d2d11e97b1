#pragma once

#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace corvane::tests {

class Pump : public workbench::skill::Element {
public:
    void forEachEditableProperty(
        utils::core::function_ref<void(const workbench::skill::EditableProperty&)>) override {}

    using Element::childElements;
    using Element::element;
    using Element::parentElement;
    using Element::publishElementMembers;
};

class PumpFactory final : public workbench::skill::AbstractElementFactory {
public:
    std::unique_ptr<workbench::skill::Element> createElement() const override {
        return std::make_unique<Pump>();
    }
    std::unique_ptr<workbench::skill::Element>
    copyElement(const workbench::skill::Element& other) const override {
        return std::make_unique<Pump>(dynamic_cast<const Pump&>(other));
    }
};

/// An element class that overrides nothing but what it must.
class PumpClass : public workbench::skill::Element::Class {
public:
    std::string_view id() const override { return "pump"; }
    utils::core::Uuid uuid() const override { return {}; }
    std::wstring displayName() const override { return L"Pump"; }
    std::wstring description() const override { return L"Moves a liquid."; }
    workbench::model::ElementCategory category() const override {
        return workbench::model::ElementCategory::Device;
    }
    const workbench::skill::AbstractElementFactory& factory() const override { return factory_; }
    std::string defaultName() const override { return "pump"; }

private:
    PumpFactory factory_;
};

} // namespace corvane::tests
