#include "WorkbenchFixture.hpp"

#include <stdexcept>

namespace {

using corvane::tests::WorkbenchTest;
namespace skill = corvane::workbench::skill;

class WorkbenchSkills : public WorkbenchTest {};

/// Registers a class of the test skill a second time, as another skill would.
class Impostor final : public skill::Skill::Class {
public:
    std::string_view id() const override { return "impostor"; }
    std::wstring displayName() const override { return L"Impostor"; }
    std::string_view version() const override { return "0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(own_);
        registry.registerElementClass(taken_);
    }
    std::unique_ptr<skill::Skill> createSkill() const override {
        class Instance final : public skill::Skill {};
        return std::make_unique<Instance>();
    }

private:
    class ElementClass final : public skill::Element::Class {
    public:
        ElementClass(std::string_view id, std::uint8_t number) : id_(id), number_(number) {}
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

    ElementClass own_{"own", 77};
    ElementClass taken_{"point", 78};
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

TEST_F(WorkbenchSkills, ThatCannotBeUsedLeaveEverythingAsItWas) {
    static const Impostor impostor;
    EXPECT_EQ(textOf(workbench.addSkill(impostor)),
              "the skill “impostor” cannot be used: there are two element classes with the id "
              "“point”");
    EXPECT_EQ(workbench.skills().size(), 1U);
    EXPECT_EQ(workbench.elementClasses().find("own"), nullptr);
}

TEST_F(WorkbenchSkills, FromAMissingLibraryAreAProblem) {
    EXPECT_EQ(textOf(workbench.loadSkills("missing.so")), "“missing.so” does not exist");
}

} // namespace
