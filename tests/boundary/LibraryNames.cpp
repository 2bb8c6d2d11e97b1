// A skill library whose name is outside ASCII. A program of its own: the library is one more in the
// list of skills.
#include <corvane/workbench/host/SkillLibrary.hpp>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using corvane::workbench::host::SkillLibrary;

const std::filesystem::path kLibrary =
    std::filesystem::path(BOUNDARY_FOLDER) / u8"boundary-S\u00FCd-\u8A2D\u5099.skill";

TEST(LibraryNames, ALibraryOutsideAsciiIsOpened) {
    const auto library = SkillLibrary::open(kLibrary);
    ASSERT_TRUE(library) << library.error().text;
    ASSERT_EQ(library->skillClasses().size(), 1U);
    EXPECT_EQ(library->skillClasses().front().get().id(), "outside ASCII");
    EXPECT_EQ(library->path().filename(), kLibrary.filename());
}

TEST(LibraryNames, AMissingLibraryOutsideAsciiIsNamedInUtf8) {
    const auto library = SkillLibrary::open(u8"S\u00FCd.skill");
    ASSERT_FALSE(library);
    EXPECT_EQ(library.error().text, "\u201CS\u00FCd.skill\u201D does not exist");
}

} // namespace
