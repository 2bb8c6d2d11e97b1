#include "TestBench.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/kit/Rows.hpp>

namespace corvane::tests {
namespace {

class Row final : public kit::Row {
public:
    void describe(kit::Form& form) override { form.number("level", "Level", level).initially(4); }

    double level = 1;
};

class Tank final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.text("contents", "Contents", contents).initially("water");
        form.number("volume", "Volume", volume);
        form.uuid("asset", "Asset", asset).generated(utils::core::Uuid::generate);
        form.number("pressure", "Pressure", pressure).initially(1).savedWhenNotInitial();
        form.text("note", "Note", note).savedWhenNotInitial();
        form.flag("lid", "Lid", lid);
        form.number("lidWeight", "Weight of the lid", lidWeight)
            .initially(3)
            .visibleIf([this] { return lid; }, lid)
            .savedWhenVisible();
        form.number("hidden", "Hidden", hidden).visibleIf([] { return false; });
        form.rows("rows", "Rows", rows).savedWhenNotInitial();
    }

    std::string contents = "anything";
    double volume = 10;
    utils::core::Uuid asset;
    double pressure = 0;
    std::string note;
    bool lid = false;
    double lidWeight = 0;
    double hidden = 0;
    kit::Rows<Row> rows;
};

class InitialValues : public ::testing::Test {
protected:
    TestBench<Tank> bench;
};

TEST_F(InitialValues, AreThoseOfANewElement) {
    EXPECT_EQ(bench.object().contents, "water");
    EXPECT_EQ(bench.object().volume, 10);
}

TEST_F(InitialValues, AreThoseOfSettingsThatAFileLeavesOut) {
    bench.loadSettings(R"("volume": 5)");
    EXPECT_EQ(bench.object().contents, "water");
    EXPECT_EQ(bench.object().volume, 5);
}

TEST_F(InitialValues, YieldToThoseOfAFileInWhateverOrderTheyStand) {
    bench.loadSettings(R"("pressure": 2, "contents": "oil")");
    EXPECT_EQ(bench.object().pressure, 2);
    EXPECT_EQ(bench.object().contents, "oil");
}

TEST_F(InitialValues, AreThoseOfARowsSettingsToo) {
    bench.loadSettings(R"("rows": [{}, {"level": 2}])");
    EXPECT_EQ(bench.object().rows[0].level, 4);
    EXPECT_EQ(bench.object().rows[1].level, 2);
    EXPECT_EQ(bench.object().rows.insert(0).level, 4);
}

TEST_F(InitialValues, AreGeneratedForNewElementsOnly) {
    const utils::core::Uuid first = bench.object().asset;
    EXPECT_FALSE(first.isNil());
    bench.add("Test", "F");
    EXPECT_NE(bench.object("F").asset, first);
    bench.loadSettings(R"("volume": 5)");
    EXPECT_TRUE(bench.object().asset.isNil());
}

TEST_F(InitialValues, DecideWhatIsSaved) {
    bench.loadSettings(R"("asset": "01234567-89ab-cdef-0123-456789abcdef")");
    EXPECT_EQ(bench.savedSettings(),
              R"({"contents":"water","volume":10,"asset":"01234567-89ab-cdef-0123-456789abcdef",)"
              R"("lid":false,"hidden":0})");
    bench.object().pressure = 2;
    bench.object().note = "checked";
    bench.object().lid = true;
    bench.object().rows.insert(0);
    EXPECT_EQ(bench.savedSettings(),
              R"({"contents":"water","volume":10,"asset":"01234567-89ab-cdef-0123-456789abcdef",)"
              R"("pressure":2,"note":"checked","lid":true,"lidWeight":3,"hidden":0,)"
              R"("rows":[{"level":4}]})");
}

TEST_F(InitialValues, AreSavedWhereAnEmptyValueIsAnother) {
    bench.object().pressure = 0;
    EXPECT_NE(bench.savedSettings().find(R"("pressure":0)"), std::string::npos);
}

class Files : public InitialValues {};

TEST_F(Files, RefuseAMemberThatNothingDescribes) {
    EXPECT_THAT(bench.problemsOf(R"("volume": 5, "Volume": 6)"),
                ElementsAre("configuration.json:2:14: error: unknown parameter \"Volume\""));
    EXPECT_THAT(bench.problemsOf(R"("rows": [{"level": 1, "depth": 1}])"),
                ElementsAre("configuration.json:2:23: error: unknown parameter \"depth\""));
}

TEST_F(Files, MayHoldTheirMembersInAnyOrder) {
    bench.loadSettings(R"("rows": [{}], "lidWeight": 9, "note": "n", "volume": 5, "lid": true)");
    EXPECT_EQ(bench.object().rows.size(), 1U);
    EXPECT_EQ(bench.object().lidWeight, 9);
    EXPECT_EQ(bench.object().note, "n");
    EXPECT_EQ(bench.object().volume, 5);
    EXPECT_TRUE(bench.object().lid);
}

TEST_F(Files, KeepHiddenValuesThatAreNotSaved) {
    bench.loadSettings(R"("lidWeight": 9)");
    EXPECT_EQ(bench.object().lidWeight, 9);
    EXPECT_EQ(bench.savedSettings().find("lidWeight"), std::string::npos);
}

} // namespace
} // namespace corvane::tests
