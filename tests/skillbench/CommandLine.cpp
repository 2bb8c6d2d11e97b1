#include "CommandLine.hpp"

#include "Failure.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

using corvane::skillbench::CommandLine;
using corvane::skillbench::UsageFailure;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

/// A command with an option of every kind, and two parameters.
struct Parsed {
    Texts skills;
    std::string first;
    std::string second;
    bool flag = false;
    std::optional<std::string> output;
    Texts ordered;
    bool goesOn = false;
    std::string failure;
    std::string help;

    explicit Parsed(const Texts& arguments) {
        CommandLine commandLine("tool command", "Does something.");
        commandLine.addValues("skill", "LIBRARY...", skills, "libraries");
        commandLine.addFlag("flag", flag, "a flag");
        commandLine.addValue("o,output", "FILE", output, "a file");
        commandLine.addOrdered(
            "add", "X", [&](const std::string& value) { ordered.push_back("add " + value); },
            "adds");
        commandLine.addOrdered(
            "drop", "X", [&](const std::string& value) { ordered.push_back("drop " + value); },
            "drops");
        commandLine.addParameter("FIRST", first, "the first parameter");
        commandLine.addParameter("SECOND", second, "the second parameter");
        std::ostringstream out;
        try {
            goesOn = commandLine.parse(arguments, out);
        } catch (const UsageFailure& thrown) {
            failure = thrown.what();
        }
        help = out.str();
    }
};

TEST(CommandLine, TakesParametersInTheirOrder) {
    const Parsed parsed({"a", "b"});
    EXPECT_EQ(parsed.failure, "");
    EXPECT_TRUE(parsed.goesOn);
    EXPECT_EQ(parsed.first, "a");
    EXPECT_EQ(parsed.second, "b");
    EXPECT_FALSE(parsed.flag);
    EXPECT_EQ(parsed.output, std::nullopt);
}

TEST(CommandLine, AListOfValuesLeavesTheParametersTheirArguments) {
    for (const Texts& arguments :
         {Texts{"--skill", "s", "t", "a", "b"}, Texts{"--skill", "s", "t", "a", "--flag", "b"},
          Texts{"a", "--skill", "s", "t", "b"}, Texts{"--skill", "s", "t", "--flag", "a", "b"},
          Texts{"--skill", "s", "--skill", "t", "a", "b"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Parsed parsed(arguments);
        if (arguments.front() == "a") {
            EXPECT_EQ(parsed.first, "b"); // It stands behind the list, "a" in front of it.
            EXPECT_EQ(parsed.second, "a");
            continue;
        }
        EXPECT_THAT(parsed.skills, ElementsAre("s", "t"));
        EXPECT_EQ(parsed.first, "a");
        EXPECT_EQ(parsed.second, "b");
    }
}

TEST(CommandLine, OrderedOptionsComeInTheOrderOfTheCommandLine) {
    const Parsed parsed(
        {"--drop", "1", "a", "--add", "2", "--drop=3", "b", "--flag", "--add", "4"});
    EXPECT_THAT(parsed.ordered, ElementsAre("drop 1", "add 2", "drop 3", "add 4"));
    EXPECT_TRUE(parsed.flag);
}

TEST(CommandLine, BracketsAndCommasAreNothingSpecial) {
    const Parsed parsed({"--skill", "[s,t]", "[a,b]", "[c]", "--add", "[x,y]", "--output", "[o]"});
    EXPECT_THAT(parsed.skills, ElementsAre("[s,t]"));
    EXPECT_EQ(parsed.first, "[a,b]");
    EXPECT_EQ(parsed.second, "[c]");
    EXPECT_THAT(parsed.ordered, ElementsAre("add [x,y]"));
    EXPECT_EQ(parsed.output, "[o]");
}

TEST(CommandLine, PathsThatBeginWithASlashAreNoOptions) {
    const Parsed parsed({"/flag", "/o"});
    EXPECT_EQ(parsed.failure, "");
    EXPECT_EQ(parsed.first, "/flag");
    EXPECT_EQ(parsed.second, "/o");
}

TEST(CommandLine, WhatStandsBehindTwoDashesIsNoOption) {
    const Parsed parsed({"--flag", "--", "--output", "-x"});
    EXPECT_EQ(parsed.failure, "");
    EXPECT_EQ(parsed.first, "--output");
    EXPECT_EQ(parsed.second, "-x");
}

TEST(CommandLine, TheLastOfSeveralValuesCounts) {
    EXPECT_EQ(Parsed({"a", "b", "-o", "x", "--output", "y"}).output, "y");
}

TEST(CommandLine, AFlagMaySayThatItIsNotMeant) {
    EXPECT_FALSE(Parsed({"a", "b", "--flag=false"}).flag);
    EXPECT_TRUE(Parsed({"a", "b", "--flag=true"}).flag);
}

TEST(CommandLine, TakesArgumentsOfEveryLength) {
    const std::string text(1'000'000, 'x');
    const Parsed parsed({text, "b", "--output=" + text, "--add", text});
    EXPECT_EQ(parsed.failure, "");
    EXPECT_TRUE(parsed.first == text);
    EXPECT_TRUE(parsed.output == text);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_EQ(Parsed({"a", "b", "--jsn"}).failure, "there is no option “--jsn”");
    EXPECT_EQ(Parsed({"a", "b", "--jsn=5"}).failure, "there is no option “--jsn”");
    EXPECT_EQ(Parsed({"a", "-x", "b"}).failure, "there is no option “-x”");
    EXPECT_EQ(Parsed({"a", "b", "c"}).failure, "the argument “c” is one too many");
}

TEST(CommandLine, SaysWhatIsMissing) {
    EXPECT_EQ(Parsed({}).failure, "FIRST is missing");
    EXPECT_EQ(Parsed({"a"}).failure, "SECOND is missing");
    EXPECT_EQ(Parsed({"--skill", "s", "a"}).failure, "SECOND is missing");
    EXPECT_EQ(Parsed({"a", "b", "--skill"}).failure, "the option --skill needs a value");
    EXPECT_EQ(Parsed({"a", "b", "-o"}).failure, "the option -o needs a value");
    EXPECT_EQ(Parsed({"a", "b", "--add"}).failure, "the option --add needs a value");
    EXPECT_EQ(Parsed({"a", "b", "--flag=x"}).failure,
              "there is a value behind an option that takes none");
}

TEST(CommandLine, NothingIsDoneForACommandLineThatIsWrong) {
    EXPECT_THAT(Parsed({"--add", "1", "a"}).ordered, IsEmpty());
}

TEST(CommandLine, PrintsItsHelp) {
    for (const char* option : {"-h", "--help"}) {
        const Parsed parsed({option});
        EXPECT_FALSE(parsed.goesOn);
        EXPECT_EQ(parsed.failure, "");
        EXPECT_THAT(parsed.help, HasSubstr("Does something."));
        EXPECT_THAT(parsed.help, HasSubstr("tool command [OPTIONS] FIRST SECOND"));
        EXPECT_THAT(parsed.help, HasSubstr("--skill LIBRARY..."));
        EXPECT_THAT(parsed.help, HasSubstr("the second parameter"));
    }
}

TEST(CommandLine, TakesAListOfParameters) {
    std::string kind;
    Texts list;
    std::ostringstream out;
    CommandLine commandLine("tool", "Does something.");
    commandLine.addParameter("KIND", kind, "the kind");
    commandLine.addParameters("KEYS", list, "the keys");
    EXPECT_TRUE(commandLine.parse(Texts{"k", "[a]", "b"}, out));
    EXPECT_EQ(kind, "k");
    EXPECT_THAT(list, ElementsAre("[a]", "b"));
    const auto failure = [&](const Texts& arguments) -> std::string {
        try {
            (void)commandLine.parse(arguments, out);
        } catch (const UsageFailure& thrown) {
            return thrown.what();
        }
        return {};
    };
    EXPECT_EQ(failure({"k"}), "KEYS is missing");
    EXPECT_EQ(failure({}), "KIND is missing");
}

} // namespace
