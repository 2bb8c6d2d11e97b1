#pragma once

// Element classes and skills for tests, made from an id and the type of the elements.

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::tests {

template <class E>
class TestFactory final : public corvane::workbench::skill::AbstractElementFactory {
public:
    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Element>
    createElement() const override {
        return std::make_unique<E>();
    }
    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Element>
    copyElement(const corvane::workbench::skill::Element& other) const override {
        return std::make_unique<E>(dynamic_cast<const E&>(other));
    }
};

template <class E, class Factory = TestFactory<E>>
class TestElementClass final : public corvane::workbench::skill::Element::Class {
public:
    TestElementClass(std::string id, std::uint8_t number,
                     corvane::workbench::model::ElementCategory category, bool acceptsChildren)
        : id_(std::move(id)), number_(number), category_(category),
          acceptsChildren_(acceptsChildren) {}

    [[nodiscard]] std::string_view id() const override { return id_; }
    [[nodiscard]] corvane::utils::core::Uuid uuid() const override {
        corvane::utils::core::Uuid::Bytes bytes{};
        bytes.back() = number_;
        return corvane::utils::core::Uuid(bytes);
    }
    [[nodiscard]] std::wstring displayName() const override {
        return L"Test " + corvane::utils::string::toWide(id_);
    }
    [[nodiscard]] std::wstring description() const override { return L"For tests."; }
    [[nodiscard]] corvane::workbench::model::ElementCategory category() const override {
        return category_;
    }
    [[nodiscard]] const Factory& factory() const override { return factory_; }
    [[nodiscard]] bool allowChildElement(const Class&) const override { return acceptsChildren_; }
    [[nodiscard]] std::string defaultName() const override { return id_; }

private:
    std::string id_;
    std::uint8_t number_;
    corvane::workbench::model::ElementCategory category_;
    bool acceptsChildren_;
    Factory factory_;
};

class TestSkillInstance final : public corvane::workbench::skill::Skill {};

/// A skill with one element class, called like the skill. Its object stays for the process.
template <class E, class Factory = TestFactory<E>>
class SingleClassSkill final : public corvane::workbench::skill::Skill::Class {
public:
    SingleClassSkill(std::string id, std::uint8_t number)
        : elementClass_(std::move(id), number,
                        corvane::workbench::model::ElementCategory::DataPoint, false) {}

    [[nodiscard]] std::string_view id() const override { return elementClass_.id(); }
    [[nodiscard]] std::wstring displayName() const override { return elementClass_.displayName(); }
    [[nodiscard]] std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(elementClass_);
    }
    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Skill> createSkill() const override {
        return std::make_unique<TestSkillInstance>();
    }

private:
    TestElementClass<E, Factory> elementClass_;
};

} // namespace corvane::tests
