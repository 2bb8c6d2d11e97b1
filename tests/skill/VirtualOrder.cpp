// The order of the virtual operations is part of what skills and the workbench rely on.
#include "PumpClass.hpp"
#include "RecordingSupervisor.hpp"
#include "virtualPosition.hpp"
#include <corvane/workbench/skill/Skill.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <gtest/gtest.h>

#include <cstdint>

namespace corvane::tests {
namespace {

namespace config = workbench::config;
namespace skill = workbench::skill;

class VirtualOrder : public ::testing::Test {
protected:
    void SetUp() override {
        if (!kVirtualPositionsKnown) {
            GTEST_SKIP() << "the binary interface is not known";
        }
    }
};

class OpenElement final : public Pump {
public:
    void propertyErrorCountChanged() override {}
    void forEachSubPropertyContainer(
        const utils::core::function_ref<void(workbench::bindings::PropertyContainer&)>&,
        bool) override {}
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(workbench::bindings::CrossReferenceController&)>&,
        bool) override {}
    std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const workbench::bindings::PropertyId&) override {}
    void configureProperties(PropertyConfigurationContext&) override {}
    void load(utils::json::decoder::Object&, config::Context&) override {}
    void save(utils::json::encoder::Object&) const override {}
    void makeDefault() override {}
    bool forEachAttribute(
        const utils::core::function_ref<bool(const workbench::model::Attribute&)>&) const override {
        return false;
    }
    bool forEachEvent(
        const utils::core::function_ref<bool(const workbench::process::Event&)>&) const override {
        return false;
    }
    bool forEachTask(
        const utils::core::function_ref<bool(const workbench::process::Task&)>&) const override {
        return false;
    }
    void forEachEditableProperty(
        utils::core::function_ref<void(const skill::EditableProperty&)>) override {}
    std::optional<utils::core::Uuid> importId() override { return std::nullopt; }
    void importMerge(const workbench::model::Element&) override {}
    bool preserveExistingNameOnImport() const override { return false; }
};

TEST_F(VirtualOrder, OfAnElement) {
    EXPECT_EQ(virtualPosition(&OpenElement::propertyErrorCountChanged), 2U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachSubPropertyContainer), 3U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachLocalCrossReference), 4U);
    EXPECT_EQ(virtualPosition(&OpenElement::localPropertyErrorCount), 5U);
    EXPECT_EQ(virtualPosition(&OpenElement::propertyNotificationRaised), 6U);
    EXPECT_EQ(virtualPosition(&OpenElement::configureProperties), 7U);
    EXPECT_EQ(virtualPosition(&OpenElement::load), 8U);
    EXPECT_EQ(virtualPosition(&OpenElement::save), 9U);
    EXPECT_EQ(virtualPosition(&OpenElement::makeDefault), 10U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachAttribute), 11U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachEvent), 12U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachTask), 13U);
    EXPECT_EQ(virtualPosition(&OpenElement::forEachEditableProperty), 14U);
    EXPECT_EQ(virtualPosition(&OpenElement::importId), 15U);
    EXPECT_EQ(virtualPosition(&OpenElement::importMerge), 16U);
    EXPECT_EQ(virtualPosition(&OpenElement::preserveExistingNameOnImport), 17U);
}

TEST_F(VirtualOrder, OfASubElement) {
    EXPECT_EQ(virtualPosition(&skill::SubElement::displayName), 8U);
    EXPECT_EQ(virtualPosition(&skill::SubElement::displayNamePropertyId), 9U);
    EXPECT_EQ(virtualPosition(&skill::SubElement::forEachEditableProperty), 10U);
}

TEST_F(VirtualOrder, OfAnElementClass) {
    using Class = skill::Element::Class;
    EXPECT_EQ(virtualPosition(&Class::id), 2U);
    EXPECT_EQ(virtualPosition(&Class::uuid), 3U);
    EXPECT_EQ(virtualPosition(&Class::displayName), 4U);
    EXPECT_EQ(virtualPosition(&Class::description), 5U);
    EXPECT_EQ(virtualPosition(&Class::category), 6U);
    EXPECT_EQ(virtualPosition(&Class::factory), 7U);
    EXPECT_EQ(virtualPosition(&Class::allowChildElement), 8U);
    EXPECT_EQ(virtualPosition(&Class::defaultName), 9U);
}

TEST_F(VirtualOrder, OfAFactory) {
    EXPECT_EQ(virtualPosition(&skill::AbstractElementFactory::createElement), 2U);
    EXPECT_EQ(virtualPosition(&skill::AbstractElementFactory::copyElement), 3U);
}

TEST_F(VirtualOrder, OfASupervisor) {
    using Supervisor = skill::internal::AbstractElementSupervisor;
    EXPECT_EQ(virtualPosition(&Supervisor::element), 2U);
    EXPECT_EQ(virtualPosition(&Supervisor::elementClass), 3U);
    EXPECT_EQ(virtualPosition(&Supervisor::publishElementMembers), 4U);
}

TEST_F(VirtualOrder, OfASkillClassAndItsRegistry) {
    using Class = skill::Skill::Class;
    EXPECT_EQ(virtualPosition(&Class::id), 2U);
    EXPECT_EQ(virtualPosition(&Class::displayName), 3U);
    EXPECT_EQ(virtualPosition(&Class::version), 4U);
    EXPECT_EQ(virtualPosition(&Class::registerElementClasses), 5U);
    EXPECT_EQ(virtualPosition(&Class::createSkill), 6U);
    EXPECT_EQ(virtualPosition(&Class::Registry::registerElementClass), 2U);
}

} // namespace
} // namespace corvane::tests
