#include <corvane/workbench/skill/Element.hpp>

#include "PumpClass.hpp"
#include "RecordingSupervisor.hpp"
#include "model/FakeElement.hpp"
#include "model/internal/savedText.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace corvane::tests {
namespace {

using workbench::bindings::PropertyController;
using workbench::model::Attribute;
using workbench::process::Event;
using workbench::process::Task;
using workbench::skill::Element;
using workbench::skill::internal::ElementAccess;

static_assert(std::is_base_of_v<PropertyController, Element>);
static_assert(std::is_abstract_v<Element>);
static_assert(std::has_virtual_destructor_v<Element>);
static_assert(sizeof(Element) == sizeof(PropertyController) + sizeof(void*));
static_assert(std::is_abstract_v<Element::Class>);
static_assert(sizeof(Element::Class) == sizeof(void*));

class RefusingContext final : public workbench::config::Context {
private:
    void resolveElementReference(ReferenceKey&&,
                                 std::reference_wrapper<workbench::model::ElementReference>,
                                 std::function<void()>&&) override {
        throw std::logic_error("nothing to resolve");
    }
    void resolveMemberReference(
        ReferenceKey&&, std::reference_wrapper<workbench::model::internal::BasicElementReference>,
        std::function<void()>&&) override {
        throw std::logic_error("nothing to resolve");
    }
};

void load(Element& element, std::string_view json) {
    utils::io::MemoryInputStream<char> stream(json);
    utils::json::decoder::Document document(stream);
    auto object = document.root().asObject();
    RefusingContext context;
    ElementAccess::load(element, object, context);
    document.finish();
}

class SkillElementTest : public ::testing::Test {
protected:
    FakeElement generic;
    PumpClass pumpClass;
    RecordingSupervisor supervisor{generic, pumpClass};
    Pump pump;
};

TEST_F(SkillElementTest, WhatTheSupervisorKnowsIsReachedThroughIt) {
    ElementAccess::attach(pump, supervisor);
    EXPECT_EQ(&pump.element(), &generic);
    EXPECT_EQ(&pump.elementClass(), &pumpClass);
}

TEST_F(SkillElementTest, NameIdentifierAndKeyAreThoseOfTheGenericElement) {
    ElementAccess::attach(pump, supervisor);
    generic.elementName = "P1";
    generic.key = "plant.P1";
    generic.identifier = *utils::core::Uuid::parse("01234567-89ab-cdef-0123-456789abcdef");
    const Pump& constant = pump;
    EXPECT_EQ(constant.name(), "P1");
    EXPECT_EQ(constant.primaryKey(), "plant.P1");
    EXPECT_EQ(constant.uuid().toString(), "01234567-89ab-cdef-0123-456789abcdef");
}

TEST_F(SkillElementTest, ParentAndChildrenAreThoseOfTheGenericElement) {
    ElementAccess::attach(pump, supervisor);
    FakeElement parent;
    FakeElement child;
    generic.parent = &parent;
    generic.children.elements = {&child};
    EXPECT_EQ(&pump.parentElement(), &parent);
    ASSERT_EQ(pump.childElements().size(), 1U);
    EXPECT_EQ(&pump.childElements().front(), &child);
}

TEST_F(SkillElementTest, MembersArePublishedByTheSupervisor) {
    ElementAccess::attach(pump, supervisor);
    pump.publishElementMembers();
    pump.publishElementMembers();
    EXPECT_EQ(supervisor.publications, 2);
}

TEST_F(SkillElementTest, AttachingAgainReplacesTheSupervisor) {
    FakeElement otherGeneric;
    RecordingSupervisor other(otherGeneric, pumpClass);
    ElementAccess::attach(pump, supervisor);
    ElementAccess::attach(pump, other);
    EXPECT_EQ(&pump.element(), &otherGeneric);
}

TEST_F(SkillElementTest, AssignmentKeepsTheSupervisorOfTheTarget) {
    FakeElement otherGeneric;
    RecordingSupervisor other(otherGeneric, pumpClass);
    Pump source;
    ElementAccess::attach(source, other);
    ElementAccess::attach(pump, supervisor);
    pump = source;
    EXPECT_EQ(&pump.element(), &generic);
    pump = std::move(source);
    EXPECT_EQ(&pump.element(), &generic);
}

TEST_F(SkillElementTest, ACopyIsAttachedAnew) {
    ElementAccess::attach(pump, supervisor);
    Pump copy(pump);
    FakeElement otherGeneric;
    RecordingSupervisor other(otherGeneric, pumpClass);
    ElementAccess::attach(copy, other);
    EXPECT_EQ(&copy.element(), &otherGeneric);
    EXPECT_EQ(&pump.element(), &generic);
}

// The defaults.

TEST_F(SkillElementTest, TheDefaultLoadAcceptsAnEmptyObject) {
    EXPECT_NO_THROW(load(pump, "{}"));
}

TEST_F(SkillElementTest, TheDefaultLoadReportsTheFirstMember) {
    try {
        load(pump, "{\n  \"x\": 1,\n  \"y\": 2\n}");
        FAIL() << "loaded";
    } catch (const utils::json::decoder::Exception& error) {
        EXPECT_EQ(error.location().line(), 2U);
        EXPECT_NE(dynamic_cast<const std::runtime_error*>(&error), nullptr);
    }
    try {
        load(pump, "{\"x\": 1}");
        FAIL() << "loaded";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "unknown parameter \"x\"");
    }
}

TEST_F(SkillElementTest, TheDefaultSaveWritesNothing) {
    EXPECT_EQ(written([&](utils::json::encoder::Value& value) {
                  utils::json::encoder::Object object = value.writeObject();
                  ElementAccess::save(pump, object);
              }),
              "{}");
}

TEST_F(SkillElementTest, TheDefaultElementHasNoMembersOfItsOwn) {
    ElementAccess::makeDefault(pump);
    const auto unexpected = [](const auto&) {
        ADD_FAILURE() << "a member";
        return true;
    };
    EXPECT_FALSE(ElementAccess::forEachAttribute(pump, unexpected));
    EXPECT_FALSE(ElementAccess::forEachEvent(pump, unexpected));
    EXPECT_FALSE(ElementAccess::forEachTask(pump, unexpected));
}

TEST_F(SkillElementTest, TheDefaultImportKnowsAndKeepsNothing) {
    EXPECT_EQ(ElementAccess::importId(pump), std::nullopt);
    ElementAccess::importMerge(pump, generic);
    EXPECT_FALSE(ElementAccess::preserveExistingNameOnImport(pump));
    EXPECT_TRUE(generic.takeCalls().empty());
}

TEST(SkillElementClass, AcceptsNoChildrenUnlessItSaysSo) {
    const PumpClass pumpClass;
    const PumpClass other;
    EXPECT_FALSE(pumpClass.allowChildElement(other));
    EXPECT_FALSE(pumpClass.allowChildElement(pumpClass));
}

TEST(SkillElementClass, IsCopiedWithoutTakingAnythingAlong) {
    const PumpClass pumpClass;
    PumpClass copy(pumpClass);
    copy = pumpClass;
    EXPECT_EQ(copy.id(), "pump");
}

// What a skill overrides is what the workbench reaches.

class BusyPump final : public Pump {
public:
    std::string calls;

private:
    void load(utils::json::decoder::Object& object, workbench::config::Context&) override {
        calls += "load";
        for (auto&& member : object) {
            calls += " " + std::string(member.name.text());
        }
    }
    void save(utils::json::encoder::Object& object) const override {
        object.addMember("speed").writeNumber("3");
    }
    void makeDefault() override { calls += "makeDefault"; }
    bool forEachAttribute(
        const utils::core::function_ref<bool(const Attribute&)>& callback) const override {
        return callback(Attribute::kQuality);
    }
    bool
    forEachEvent(const utils::core::function_ref<bool(const Event&)>& callback) const override {
        return callback(Event::kConnected);
    }
    bool forEachTask(const utils::core::function_ref<bool(const Task&)>& callback) const override {
        return callback(Task::kReconnect);
    }
    std::optional<utils::core::Uuid> importId() override {
        return utils::core::Uuid::parse("01234567-89ab-cdef-0123-456789abcdef");
    }
    void importMerge(const workbench::model::Element& other) override { calls += other.name(); }
    bool preserveExistingNameOnImport() const override { return true; }
};

TEST(SkillElementAccess, ReachesEveryOverride) {
    BusyPump pump;
    load(pump, R"({"speed": 3, "level": 4})");
    EXPECT_EQ(std::exchange(pump.calls, ""), "load speed level");
    EXPECT_EQ(written([&](utils::json::encoder::Value& value) {
                  utils::json::encoder::Object object = value.writeObject();
                  ElementAccess::save(pump, object);
              }),
              R"({"speed":3})");
    ElementAccess::makeDefault(pump);
    EXPECT_EQ(std::exchange(pump.calls, ""), "makeDefault");

    std::string names;
    const auto name = [&](const auto& member) {
        names += std::string(member.name()) + " ";
        return true;
    };
    EXPECT_TRUE(ElementAccess::forEachAttribute(pump, name));
    EXPECT_TRUE(ElementAccess::forEachEvent(pump, name));
    EXPECT_TRUE(ElementAccess::forEachTask(pump, name));
    EXPECT_EQ(names, "quality connected reconnect ");

    EXPECT_EQ(ElementAccess::importId(pump)->toString(), "01234567-89ab-cdef-0123-456789abcdef");
    FakeElement other;
    other.elementName = "other";
    ElementAccess::importMerge(pump, other);
    EXPECT_EQ(pump.calls, "other");
    EXPECT_TRUE(ElementAccess::preserveExistingNameOnImport(pump));
}

TEST(SkillElementFactory, CreatesAndCopiesElements) {
    const PumpClass pumpClass;
    PumpFactory copy(static_cast<const PumpFactory&>(pumpClass.factory()));
    copy = static_cast<const PumpFactory&>(pumpClass.factory());
    const auto element = copy.createElement();
    ASSERT_NE(element, nullptr);
    EXPECT_NE(copy.copyElement(*element), nullptr);
}

TEST(SkillElementSupervisor, IsCopiedWithoutTakingAnythingAlong) {
    const FakeElement generic;
    const PumpClass pumpClass;
    const RecordingSupervisor supervisor(generic, pumpClass);
    const RecordingSupervisor copy(supervisor);
    EXPECT_EQ(&copy.element(), &generic);
}

} // namespace
} // namespace corvane::tests
