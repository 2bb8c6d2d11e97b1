// A skill in a library of its own, with one element class.

#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <utility>

namespace {

namespace model = corvane::workbench::model;
namespace skill = corvane::workbench::skill;

class FixtureElement final : public skill::Element {
public:
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)>) override {}

private:
    void load(corvane::utils::json::decoder::Object& object,
              corvane::workbench::config::Context&) override {
        for (const auto& [name, value] : object) {
            if (name == "note") {
                note_ = value.asString().view();
            } else {
                corvane::workbench::config::throwUnknownParameterError(name);
            }
        }
    }
    void save(corvane::utils::json::encoder::Object& object) const override {
        object.addMember("note").writeString(note_);
    }

    std::string note_;
};

class FixtureFactory final : public skill::AbstractElementFactory {
public:
    std::unique_ptr<skill::Element> createElement() const override {
        return std::make_unique<FixtureElement>();
    }
    std::unique_ptr<skill::Element> copyElement(const skill::Element& other) const override {
        return std::make_unique<FixtureElement>(dynamic_cast<const FixtureElement&>(other));
    }
};

class FixtureElementClass final : public skill::Element::Class {
public:
    std::string_view id() const override { return "fixture"; }
    corvane::utils::core::Uuid uuid() const override {
        return *corvane::utils::core::Uuid::parse("5a1d7c9e-3f42-4b0a-9c57-0d8a3a2f6e11");
    }
    std::wstring displayName() const override { return L"Fixture"; }
    std::wstring description() const override { return L"Holds a note."; }
    model::ElementCategory category() const override {
        return model::ElementCategory::SpecialPurpose;
    }
    const skill::AbstractElementFactory& factory() const override { return factory_; }
    std::string defaultName() const override { return "fixture"; }

private:
    FixtureFactory factory_;
};

class FixtureSkill final : public skill::Skill {};

class FixtureSkillClass final : public skill::Skill::Class {
public:
    std::string_view id() const override { return "fixture-skill"; }
    std::wstring displayName() const override { return L"Fixture skill"; }
    std::string_view version() const override { return "2.1"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(elementClass_);
    }
    std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<FixtureSkill>();
    }

private:
    FixtureElementClass elementClass_;
};

const FixtureSkillClass kFixtureSkill;

} // namespace
