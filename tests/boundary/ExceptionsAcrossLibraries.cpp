// Exceptions, expected values and strings cross between the program and a skill library, both ways.
#include "BoundaryProbe.hpp"
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/host/SkillLibrary.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

namespace decoder = corvane::utils::json::decoder;
using corvane::tests::BoundaryProbe;
using corvane::workbench::host::SkillLibrary;

class ExceptionsAcrossLibraries : public ::testing::Test {
protected:
    void SetUp() override {
        const auto library =
            SkillLibrary::open(std::filesystem::path(BOUNDARY_FOLDER) / BOUNDARY_FIRST_FILE);
        ASSERT_TRUE(library) << library.error().text;
        skill = library->skillClasses().front().get().createSkill();
        probe = dynamic_cast<const BoundaryProbe*>(skill.get());
        ASSERT_NE(probe, nullptr) << "the two sides do not agree on the type of the skill";
    }

    std::unique_ptr<corvane::workbench::skill::Skill> skill;
    const BoundaryProbe* probe = nullptr;
};

TEST_F(ExceptionsAcrossLibraries, AStandardExceptionOfTheSkillIsCaughtByItsType) {
    try {
        probe->throwStandard();
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& exception) {
        EXPECT_STREQ(exception.what(), "from the skill");
    }
}

TEST_F(ExceptionsAcrossLibraries, ALocatedExceptionOfTheSkillIsCaughtWithItsPlace) {
    try {
        probe->throwLocated();
        FAIL() << "nothing was thrown";
    } catch (const decoder::Exception& exception) {
        EXPECT_EQ(exception.location().line(), 3U);
        EXPECT_EQ(exception.location().column(), 5U);
    }
}

TEST_F(ExceptionsAcrossLibraries, ALocatedExceptionOfTheSkillIsAlsoTheStandardOne) {
    try {
        probe->throwLocated();
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& exception) {
        EXPECT_STREQ(exception.what(), "unknown parameter \"speed\"");
    }
}

TEST_F(ExceptionsAcrossLibraries, AStandardExceptionOfTheProgramIsCaughtInTheSkill) {
    EXPECT_EQ(probe->nameWhatComesOut([] { throw std::out_of_range("from the program"); }),
              "out_of_range from the program");
}

TEST_F(ExceptionsAcrossLibraries, ALocatedExceptionOfTheProgramIsCaughtInTheSkill) {
    EXPECT_EQ(probe->nameWhatComesOut([] {
        corvane::workbench::config::throwUnknownParameterError(
            decoder::Name("level", decoder::Location(7, 1)));
    }),
              "located 7");
}

TEST_F(ExceptionsAcrossLibraries, AnExceptionPassesThroughTheSkillAndBack) {
    EXPECT_EQ(probe->nameWhatComesOut([this] { probe->throwStandard(); }),
              "exception from the skill");
}

TEST_F(ExceptionsAcrossLibraries, AnExpectedValueAndItsErrorCross) {
    const auto value = probe->longText(false);
    ASSERT_TRUE(value);
    EXPECT_EQ(*value, std::wstring(1000, L'v'));
    const auto error = probe->longText(true);
    ASSERT_FALSE(error);
    EXPECT_EQ(error.error(), std::wstring(1000, L'e'));
}

TEST_F(ExceptionsAcrossLibraries, AStringMadeOnOneSideIsFreedOnTheOther) {
    const std::string half(5000, 'x');
    EXPECT_EQ(probe->doubled(std::string(half)), std::string(10000, 'x'));
}

} // namespace
