#include "TestElementClass.hpp"
#include "WorkbenchFixture.hpp"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using corvane::tests::WorkbenchTest;
namespace skill = corvane::workbench::skill;

class WorkbenchSkills : public WorkbenchTest {};

class OtherElementClass final : public skill::Element::Class {
public:
    OtherElementClass(std::string_view id, std::uint8_t number) : id_(id), number_(number) {}
    std::string_view id() const override { return id_; }
    corvane::utils::core::Uuid uuid() const override {
        return corvane::utils::core::Uuid({number_});
    }
    std::wstring displayName() const override { return L""; }
    std::wstring description() const override { return L""; }
    corvane::workbench::model::ElementCategory category() const override {
        return corvane::workbench::model::ElementCategory::Device;
    }
    const skill::AbstractElementFactory& factory() const override {
        throw std::logic_error("never used");
    }
    std::string defaultName() const override { return ""; }

private:
    std::string_view id_;
    std::uint8_t number_;
};

/// Another skill beside the test skill; of its classes it registers the first one twice.
class OtherSkill : public skill::Skill::Class {
public:
    explicit OtherSkill(std::vector<OtherElementClass> classes) : classes_(std::move(classes)) {}
    std::string_view id() const override { return "other"; }
    std::wstring displayName() const override { return L"Other"; }
    std::string_view version() const override { return "0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(classes_.front());
        for (const OtherElementClass& elementClass : classes_) {
            registry.registerElementClass(elementClass);
        }
    }
    std::unique_ptr<skill::Skill> createSkill() const override {
        class Instance final : public skill::Skill {};
        return std::make_unique<Instance>();
    }

private:
    std::vector<OtherElementClass> classes_;
};

class SkillWithoutInstance final : public OtherSkill {
public:
    using OtherSkill::OtherSkill;
    std::unique_ptr<skill::Skill> createSkill() const override { return nullptr; }
};

TEST_F(WorkbenchSkills, HoldWhatTheirClassesRegistered) {
    ASSERT_EQ(workbench.skills().size(), 1U);
    const auto& loaded = *workbench.skills().front();
    EXPECT_EQ(loaded.skillClass().id(), "test");
    EXPECT_TRUE(loaded.library().empty());
    ASSERT_EQ(loaded.elementClasses().size(), 4U);
    EXPECT_EQ(loaded.elementClasses().front().get().id(), "group");
    EXPECT_EQ(workbench.elementClasses().find("point"), &loaded.elementClasses()[2].get());
    EXPECT_EQ(workbench.elementClasses().find("pump"), nullptr);
}

TEST_F(WorkbenchSkills, AreNotAddedTwice) {
    EXPECT_TRUE(workbench.addSkill(corvane::tests::testSkill()));
    EXPECT_EQ(workbench.skills().size(), 1U);
    EXPECT_EQ(workbench.elementClasses().all().size(), 4U);
}

TEST_F(WorkbenchSkills, ComeFromALibraryAndReadConfigurations) {
    ASSERT_TRUE(workbench.loadSkills(CORVANE_TEST_SKILL));
    ASSERT_TRUE(workbench.loadSkills(CORVANE_TEST_SKILL));
    ASSERT_EQ(workbench.skills().size(), 2U);
    EXPECT_EQ(workbench.skills()[1]->library().filename(),
              std::filesystem::path(CORVANE_TEST_SKILL).filename());
    loadClean(R"({"children": [{"fixture": {"name": "a", "note": "hello"}}]})");
    EXPECT_EQ(workbench.findElement("a")->type(), L"Fixture");
    EXPECT_THAT(saved(), testing::HasSubstr(R"("note": "hello")"));
}

TEST_F(WorkbenchSkills, WorkInTwoWorkbenchesAtOnce) {
    ASSERT_TRUE(workbench.loadSkills(CORVANE_TEST_SKILL));
    corvane::workbench::host::Workbench other;
    ASSERT_TRUE(other.loadSkills(CORVANE_TEST_SKILL));
    EXPECT_TRUE(other.add("", "fixture"));
    EXPECT_TRUE(workbench.add("", "fixture"));
}

TEST_F(WorkbenchSkills, MayRegisterAClassTwice) {
    static const OtherSkill skill({{"own", 77}, {"further", 78}});
    ASSERT_TRUE(workbench.addSkill(skill));
    EXPECT_EQ(workbench.skills().back()->elementClasses().size(), 2U);
}

TEST_F(WorkbenchSkills, ThatCannotBeUsedLeaveEverythingAsItWas) {
    struct Case {
        const skill::Skill::Class& skill;
        std::string reason;
    };
    const OtherSkill takenId({{"own", 77}, {"point", 78}});
    const OtherSkill emptyId({{"own", 77}, {"", 78}});
    const OtherSkill sameUuid({{"own", 77}, {"further", 77}});
    const SkillWithoutInstance noInstance({{"own", 77}});
    for (const Case& refused :
         {Case{takenId, "there are two element classes with the id “point”"},
          {emptyId, "an element class must not have an empty id"},
          {sameUuid, "the element classes “own” and “further” have the same UUID "
                     "4d000000-0000-0000-0000-000000000000"},
          {noInstance, "it makes no instance of itself"}}) {
        EXPECT_EQ(textOf(workbench.addSkill(refused.skill)),
                  "the skill “other” cannot be used: " + refused.reason);
        EXPECT_EQ(workbench.skills().size(), 1U);
        EXPECT_EQ(workbench.elementClasses().all().size(), 4U);
        EXPECT_EQ(workbench.elementClasses().find("own"), nullptr);
    }
}

/// Neither makes nor copies anything.
class EmptyFactory final : public skill::AbstractElementFactory {
public:
    std::unique_ptr<skill::Element> createElement() const override { return nullptr; }
    std::unique_ptr<skill::Element> copyElement(const skill::Element&) const override {
        return nullptr;
    }
};

TEST_F(WorkbenchSkills, WhoseFactoryMakesNothingAreAProblem) {
    static const corvane::tests::SingleClassSkill<skill::Element, EmptyFactory> skill("empty", 60);
    ASSERT_TRUE(workbench.addSkill(skill));
    loadClean(R"({"children": [{"group": {"name": "a"}}]})");
    const std::string sentence = "the factory of the element class “empty” makes no element";

    EXPECT_EQ(textOf(workbench.add("", "empty")), sentence);
    EXPECT_THAT(keys(), testing::ElementsAre("a"));

    EXPECT_THAT(lines(load("{\"children\": [\n {\"empty\": {\"name\": \"b\"}}]}")),
                testing::ElementsAre("test.json:2:3: error: " + sentence));
    EXPECT_THAT(keys(), testing::ElementsAre("a"));

    EXPECT_TRUE(workbench.add("", "group", "b"));
}

TEST_F(WorkbenchSkills, FromAMissingLibraryAreAProblem) {
    EXPECT_EQ(textOf(workbench.loadSkills("missing.so")), "“missing.so” does not exist");
}

} // namespace
