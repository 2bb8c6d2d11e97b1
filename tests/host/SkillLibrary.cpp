#include <corvane/workbench/host/SkillLibrary.hpp>

#include "WorkbenchFixture.hpp"

namespace {

using corvane::tests::TemporaryFolder;
using corvane::workbench::host::SkillLibrary;

const std::filesystem::path kSkill = CORVANE_TEST_SKILL;
const std::filesystem::path kNoSkill = CORVANE_TEST_NO_SKILL;

std::string quoted(const std::filesystem::path& path) {
    return "“" + path.string() + "”";
}

std::string reason(const std::filesystem::path& path) {
    const auto library = SkillLibrary::open(path);
    return library ? "opened" : library.error().text;
}

TEST(SkillLibrary, FindsTheSkillsOfALibrary) {
    const auto library = SkillLibrary::open(kSkill);
    ASSERT_TRUE(library);
    EXPECT_TRUE(library->path().is_absolute());
    ASSERT_EQ(library->skillClasses().size(), 1U);
    EXPECT_EQ(library->skillClasses().front().get().id(), "fixture-skill");
}

TEST(SkillLibrary, FindsTheSameSkillsWhenOpenedAgain) {
    const auto first = SkillLibrary::open(kSkill);
    const auto second = SkillLibrary::open(kSkill);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_EQ(&first->skillClasses().front().get(), &second->skillClasses().front().get());
}

TEST(SkillLibrary, SaysThatAFileDoesNotExist) {
    EXPECT_EQ(reason("no-such-library.so"), "“no-such-library.so” does not exist");
}

TEST(SkillLibrary, SaysThatAFolderIsNoLibrary) {
    const TemporaryFolder folder;
    EXPECT_EQ(reason(folder.path()),
              quoted(folder.path()) + " is a directory, not a skill library");
}

TEST(SkillLibrary, SaysThatATextIsNoLibrary) {
    const TemporaryFolder folder;
    const auto file = folder.write("text.so", "This is not a library.\n");
    EXPECT_THAT(reason(file),
                testing::StartsWith(quoted(file) + " is no library that can be loaded: "));
}

TEST(SkillLibrary, SaysThatALibraryHoldsNoSkill) {
    EXPECT_EQ(reason(kNoSkill), quoted(kNoSkill) + " is a library but holds no skill");
    // Not only the first time.
    EXPECT_EQ(reason(kNoSkill), quoted(kNoSkill) + " is a library but holds no skill");
}

} // namespace
