#include "BenchTest.hpp"
#include <corvane/workbench/host/LoadedSkill.hpp>
#include <corvane/workbench/testing/Refused.hpp>

#include <stdexcept>

namespace corvane::tests {

namespace {

TEST_F(BenchTest, StartsEmptyOrWithWhatIsAdded) {
    EXPECT_EQ(Bench{kMixer}.workbench().elementCount(), 0U);
    EXPECT_EQ(bench.workbench().elementCount(), 1U);
    EXPECT_TRUE(bench.has("main"));
    EXPECT_FALSE(bench.has("second"));
}

TEST_F(BenchTest, KnowsTheElementClassesThatItIsGiven) {
    EXPECT_NE(bench.workbench().elementClasses().find("Test.Mixer"), nullptr);
    EXPECT_EQ(bench.workbench().elementClasses().all().size(), 1U);
}

TEST_F(BenchTest, KnowsTheSkillsThatAreLinkedIntoTheProgram) {
    const Bench other;
    ASSERT_FALSE(other.workbench().skills().empty());
    EXPECT_NE(other.workbench().elementClasses().find("Test.Mixer"), nullptr);
}

TEST_F(BenchTest, KnowsTheSkillsOfALibrary) {
    const Bench other(SKILL_LIBRARY);
    EXPECT_EQ(other.workbench().skills()[0]->skillClass().id(), "FirstSkill");
}

TEST_F(BenchTest, SaysWhyALibraryCannotBeUsed) {
    EXPECT_THAT(messageOf<std::runtime_error>([] { const Bench other("no-such-skill.so"); }),
                HasSubstr("no-such-skill.so"));
}

TEST_F(BenchTest, SaysWhyAnElementCannotBeAdded) {
    EXPECT_EQ(messageOf<Refused>([&] { bench.add("Test.Mixer", "main"); }),
              "there is already a top-level element named “main”");
    EXPECT_EQ(messageOf<Refused>([&] { bench.add("Test.Pump"); }),
              "unknown element class “Test.Pump”");
}

TEST_F(BenchTest, FindsElementsByTheirKeys) {
    main.add("Test.Mixer", "[left 1.1]");
    EXPECT_EQ(bench.element("main.[left 1.1]").key(), "main.[left 1.1]");
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(bench.element("left")); }),
              "there is no element “left”");
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(bench.element("")); }),
              "there is no element “”");
}

TEST_F(BenchTest, FindsSettingsByTheirAddresses) {
    main.add("Test.Mixer", "[left 1.1]").at("steps").insertRow(0);
    EXPECT_EQ(bench.at("main.topSpeed").address(), "main.topSpeed");
    EXPECT_EQ(bench.at("main.[left 1.1].steps").address(), "main.[left 1.1].steps");
    EXPECT_EQ(bench.at("main.[left 1.1].steps[0].speed").address(),
              "main.[left 1.1].steps.0.speed");
    EXPECT_EQ(bench.at("main.[left 1.1].steps.0.speed").address(), "main.[left 1.1].steps.0.speed");
}

TEST_F(BenchTest, FindsSettingsOfAnElementWhoseNameEndsLikeARow) {
    bench.add("Test.Mixer", "steps[0]");
    EXPECT_EQ(bench.at("steps[0].topSpeed").address(), "steps[0].topSpeed");
}

TEST_F(BenchTest, SaysWhichSettingsThereAreInsteadOfAWrongOne) {
    main.at("steps").insertRow(0);
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(bench.at("main.speed")); }),
              "the element “main” has no setting “speed”; it has drive, topSpeed, summary, leader, "
              "steps, steps.0.ingredient, steps.0.speed");
    EXPECT_EQ(messageOf<std::out_of_range>([&] { static_cast<void>(bench.at("second.speed")); }),
              "“second.speed” names no property of an element");
}

TEST_F(BenchTest, LoadsAConfigurationFromAText) {
    bench.load(R"({"children": [{"Test.Mixer": {"name": "a", "topSpeed": 5, "drive": "variable",
        "steps": [{"ingredient": "water"}, {"ingredient": "sugar", "speed": 9}]}}]})");
    EXPECT_FALSE(bench.has("main"));
    EXPECT_THAT(bench.at("a.topSpeed"), HasText("5"));
    EXPECT_THAT(bench.at("a.steps"), HasRows("water", "sugar"));
    EXPECT_THAT(bench.problems(), IsEmpty());
}

TEST_F(BenchTest, SaysAllThatIsWrongWithATextThatItCannotLoad) {
    EXPECT_EQ(messageOf<Refused>([&] {
                  bench.load("{\"children\": [\n {\"Test.Mixer\": {\"name\": \"a\", \"x\": 1}}]}");
              }),
              "the configuration cannot be loaded\n"
              "configuration.json:2:31: error: unknown parameter \"x\"");
    EXPECT_TRUE(bench.has("main"));
}

TEST_F(BenchTest, LoadsConfigurationsThatHaveErrors) {
    bench.load("{\"children\": [\n {\"Test.Mixer\": {\"name\": \"a\", \"leader\": \"b.speed\", "
               "\"drive\": \"variable\", \"topSpeed\": 0}}]}");
    EXPECT_THAT(bench, HasErrors(2));
    EXPECT_THAT(
        bench.problems(),
        ElementsAre("configuration.json:2:3: error: a.topSpeed: The top speed must lie between "
                    "1 and 3000.",
                    "configuration.json:2:41: error: the element “b” does not exist"));
}

TEST_F(BenchTest, LoadsWhatItCanOnRequest) {
    EXPECT_TRUE(bench.tryLoad(
        R"({"children": [{"Test.Mixer": {"name": "a", "x": 1}}, {"Test.Mixer": {"name": "b"}}]})",
        {.keepGoing = true}));
    EXPECT_FALSE(bench.has("a"));
    EXPECT_TRUE(bench.has("b"));
    EXPECT_EQ(bench.problems().size(), 1U);
}

TEST_F(BenchTest, LoadsFiles) {
    Bench other(SKILL_LIBRARY);
    other.loadFile(SKILL_CONFIGURATION);
    EXPECT_TRUE(other.has("main"));
    EXPECT_THAT(messageOf<Refused>([&] { other.loadFile("no-such-file.json"); }),
                HasSubstr("no-such-file.json"));
}

TEST_F(BenchTest, SavesWhatItLoadsAgain) {
    main.at("steps").insertRow(0);
    main.at("steps[0].ingredient").set("water");
    const std::string saved = bench.saved();
    EXPECT_THAT(saved, HasSubstr("\"ingredient\": \"water\""));
    bench.load(saved);
    EXPECT_EQ(bench.saved(), saved);
}

TEST_F(BenchTest, AnnouncesWhatAnEditDoesInTheOrderInWhichItHappens) {
    main.at("drive").set("variable");
    EXPECT_THAT(bench.announced(), ElementsAre("value       main.drive: variable",
                                               "visibility  main.topSpeed: visible"));
    main.at("topSpeed").set("3001");
    EXPECT_THAT(bench.announced(),
                ElementsAre("value       main.topSpeed: 3001",
                            "state       main.topSpeed: error: The top speed must lie between 1 "
                            "and 3000.",
                            "errors      main: 1", "errors      (root): 1"));
}

TEST_F(BenchTest, AnnouncesRowsAndThenWhatHappensInThem) {
    main.at("steps").insertRow(0);
    EXPECT_THAT(bench, Announced(R"(
        errors      main: 1
        errors      (root): 1
        value       main.steps: 1 row  (row 0 inserted)
        value       main.summary: 1 steps)"));
    main.at("steps[0].ingredient").set("water");
    EXPECT_THAT(bench, Announced(R"(
        value       main.steps.0.ingredient: water
        state       main.steps.0.ingredient: ok
        errors      main: 0
        errors      (root): 0
        value       main.steps: 1 row
        value       main.summary: 1 steps)"));
}

TEST_F(BenchTest, AnnouncesNothingWhenAnEditIsRefused) {
    EXPECT_NE(main.at("topSpeed").trySet("fast"), "");
    EXPECT_THAT(bench, Announced(""));
}

TEST_F(BenchTest, AnnouncesEditsThatAreMadeElsewhereBehindThoseOfTheBench) {
    main.at("drive").set("variable");
    ASSERT_TRUE(bench.workbench().rename("main", "first"));
    EXPECT_THAT(bench.announced(),
                ElementsAre("value       main.drive: variable",
                            "visibility  main.topSpeed: visible", "renamed     main → first"));
}

TEST_F(BenchTest, GoesOnAnnouncingWhenAConfigurationWasLoaded) {
    ASSERT_TRUE(bench.tryLoad(R"({"children": [{"Test.Mixer": {"name": "a"}}]})"));
    bench.at("a.drive").set("variable");
    EXPECT_THAT(bench.announced(),
                ElementsAre("value       a.drive: variable", "visibility  a.topSpeed: visible"));
}

TEST_F(BenchTest, IsPrintedWithWhatItHolds) {
    main.at("steps").insertRow(0);
    std::ostringstream text;
    text << bench << "\n" << main << "\n" << main.at("steps[0].ingredient");
    EXPECT_EQ(text.str(), "a bench with 1 element and 1 error\n"
                          "main with 1 error\n"
                          "main.steps.0.ingredient:  (error: Name the ingredient.)");
}

} // namespace

} // namespace corvane::tests
