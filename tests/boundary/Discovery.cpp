// Skills are found wherever their library comes from: linked in, loaded with the program, or opened
// while it runs. This program opens libraries that stay open, so each test asks for all it needs.
#include "linkedSkill.hpp"
#include <corvane/workbench/host/SkillLibrary.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

namespace skill = corvane::workbench::skill;
using corvane::workbench::host::SkillLibrary;
using ::testing::Contains;
using ::testing::ElementsAre;

class OwnClass final : public skill::Skill::Class {
public:
    std::string_view id() const override { return "in the program"; }
    std::wstring displayName() const override { return L"Own"; }
    std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry&) const override {}
    std::unique_ptr<skill::Skill> createSkill() const override { return nullptr; }
};

const OwnClass kOwnClass;

std::vector<std::string> allSkillIds() {
    std::vector<std::string> ids;
    for (const auto& skillClass : skill::Skill::Class::allSkills()) {
        ids.emplace_back(skillClass.get().id());
    }
    return ids;
}

// Opens the three libraries, in this order; later calls find them open.
void openLibraries() {
    for (const auto* file : {BOUNDARY_FIRST_FILE, BOUNDARY_SECOND_FILE, BOUNDARY_THIRD_FILE}) {
        const auto library = SkillLibrary::open(std::filesystem::path(BOUNDARY_FOLDER) / file);
        ASSERT_TRUE(library) << library.error().text;
        ASSERT_EQ(library->skillClasses().size(), 1U);
    }
}

TEST(Discovery, ASkillThatIsAStaticOfTheProgramIsFound) {
    EXPECT_THAT(allSkillIds(), Contains("in the program"));
}

TEST(Discovery, ASkillOfALibraryThatIsLoadedWithTheProgramIsFound) {
    EXPECT_THAT(allSkillIds(), Contains(corvane::tests::linkedSkillId()));
}

TEST(Discovery, AStaticOfALoadedLibraryRegistersBeforeTheProgramsOwn) {
    const auto ids = allSkillIds();
    const auto own = std::ranges::find(ids, "in the program");
    const auto linked = std::ranges::find(ids, "linked");
    EXPECT_LT(own, linked) << "newest first";
}

TEST(Discovery, LibrariesOpenedOneAfterTheOtherAreFoundNewestFirst) {
    openLibraries();
    auto ids = allSkillIds();
    ids.resize(3);
    EXPECT_THAT(ids, ElementsAre("third", "second", "first"));
}

TEST(Discovery, OpeningALibraryAgainAddsNothing) {
    openLibraries();
    const auto before = allSkillIds();
    openLibraries();
    EXPECT_EQ(allSkillIds(), before);
}

} // namespace
