#include <corvane/workbench/kit/Rows.hpp>

#include "TestBench.hpp"
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace corvane::tests {
namespace {

class Step final : public kit::Row {
public:
    void describe(kit::Form& form) override {
        form.writtenAsValue();
        form.number("speed", "Speed", speed).rule([](double value) { return value >= 0; }, "Less.");
    }

    double speed = 0;
};

class Phase final : public kit::Row {
public:
    using kit::Row::owner;

    void describe(kit::Form& form) override {
        form.derived("sum", "Sum", [this] { return sumText(); }).follows(steps);
        form.text("title", "Title", title);
        form.rows("steps", "Steps", steps)
            .rule([this] { return kit::require(steps.size() <= 2, "Too many steps."); })
            .proposes(&Step::speed, 1);
        form.displayName([this] { return kit::text("{} ({})", title, steps.size()); })
            .follows(title, steps);
    }
    [[nodiscard]] std::wstring sumText() const {
        double sum = 0;
        for (const Step& step : steps) {
            sum += step.speed;
        }
        return kit::valueText(sum);
    }

    std::string title = "phase";
    kit::Rows<Step> steps;
};

class Recipe final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.rows("phases", "Phases", phases).rule([this] { return phasesState(); });
    }
    kit::State phasesState() const {
        std::size_t steps = 0;
        for (const Phase& phase : phases) {
            steps += phase.steps.size();
        }
        return kit::require(steps <= 3, "Too many steps in all.");
    }

    kit::Rows<Phase> phases;
};

class RowsOfRows : public ::testing::Test {
protected:
    RowsOfRows() { bench.loadSettings(R"("phases": [{"title": "a", "steps": [1, 2]}, {}])"); }

    TestBench<Recipe> bench;
};

TEST_F(RowsOfRows, AreLoadedAndSaved) {
    EXPECT_EQ(bench.object().phases[0].steps[1].speed, 2);
    EXPECT_EQ(bench.savedSettings(), R"({"phases":[{"title":"a","steps":[1,2]},)"
                                     R"({"title":"phase","steps":[]}]})");
}

TEST_F(RowsOfRows, WrittenAsValuesAreRefusedWithTheirPlace) {
    EXPECT_THAT(bench.problemsOf(R"("phases": [{"steps": [1, {}]}])"),
                ElementsAre("configuration.json:2:26: error: expected a number, found an object"));
}

TEST_F(RowsOfRows, HaveTheirOwnNames) {
    EXPECT_THAT(bench.setting("phases"), HasRows("a (2)", "phase (0)"));
    EXPECT_THAT(bench.setting("phases[0].steps"), HasRows("1", "2"));
    EXPECT_THAT(bench.setting("phases[0].sum"), HasText("3"));
}

TEST_F(RowsOfRows, AnnounceTheirChangesUpToTheElement) {
    bench.setting("phases[0].steps").insertRow(2);
    EXPECT_THAT(bench.setting("phases[0].steps"), HasRows("1", "2", "3"));
    EXPECT_THAT(bench.setting("phases[0].steps"), HasError("Too many steps."));
    EXPECT_THAT(bench, HasErrors(1));
    bench.setting("phases[1].steps").insertRow(0);
    EXPECT_THAT(bench.setting("phases"), HasError("Too many steps in all."));
    EXPECT_THAT(bench, HasErrors(2));
    bench.setting("phases[0].steps[0].speed").set("5");
    EXPECT_THAT(bench.announced(), ::testing::Contains("value       E.phases: 2 rows"));
}

TEST_F(RowsOfRows, CountTheErrorsOfAllLevels) {
    bench.setting("phases[0].steps[0].speed").set("-1");
    EXPECT_THAT(bench, HasErrors(1));
    bench.setting("phases").removeRow(0);
    EXPECT_THAT(bench, HasErrors(0));
}

TEST_F(RowsOfRows, KnowTheRowThatOwnsThem) {
    Phase& phase = bench.object().phases[0];
    EXPECT_EQ(&phase.owner<Recipe>(), &bench.object());
}

TEST_F(RowsOfRows, AreCopiedWithTheElement) {
    Recipe copy(bench.object());
    copy.phases[0].steps.remove(0);
    EXPECT_EQ(bench.object().phases[0].steps.size(), 2U);
    EXPECT_EQ(copy.phases[0].steps.size(), 1U);
}

/// A row that may have rows like itself.
class Node final : public kit::Row {
public:
    void describe(kit::Form& form) override {
        form.text("label", "Label", label);
        form.rows("nodes", "Nodes", nodes).savedWhenNotInitial();
    }

    std::string label;
    kit::Rows<Node> nodes;
};

class Tree final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.rows("nodes", "Nodes", nodes); }

    kit::Rows<Node> nodes;
};

TEST(RowsOfTheirOwnClass, AreCheckedLoadedAndSaved) {
    EXPECT_NO_THROW(testClass<Tree>().check());
    TestBench<Tree> bench;
    bench.loadSettings(R"("nodes": [{"label": "a", "nodes": [{"label": "b"}]}])");
    EXPECT_EQ(bench.object().nodes[0].nodes[0].label, "b");
    EXPECT_EQ(bench.savedSettings(), R"({"nodes":[{"label":"a","nodes":[{"label":"b"}]}]})");
}

TEST(RowsOfTheirOwnClass, MayBeNestedAsDeeplyAsAFile) {
    std::string text = R"("nodes": )";
    constexpr int kDepth = 240;
    for (int level = 0; level < kDepth; ++level) {
        text += R"([{"nodes": )";
    }
    text += "[]";
    for (int level = 0; level < kDepth; ++level) {
        text += "}]";
    }
    TestBench<Tree> bench;
    bench.loadSettings(text);
    EXPECT_THAT(bench, HasErrors(0));
    EXPECT_FALSE(bench.savedSettings().empty());
}

/// A row whose first thing is no setting.
class Measured final : public kit::Row {
public:
    using kit::Row::changed;

    void describe(kit::Form& form) override {
        form.derived("twice", "Twice", [this] { return kit::valueText(2 * value); });
        form.number("value", "Value", value);
    }

    double value = 1;
};

class Series final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.rows("values", "Values", values); }

    kit::Rows<Measured> values;
};

TEST(RowsBehindADerivedText, AreNamedByTheirFirstSetting) {
    TestBench<Series> bench;
    bench.setting("values").insertRow(0);
    EXPECT_THAT(bench.setting("values"), HasRows("1"));
    int published = 0;
    const auto subscription = bench.object().values[0].displayNameProperty().subscribe(
        {.value = [&published] { ++published; }});
    bench.setting("values[0].value").set("2");
    EXPECT_THAT(bench.setting("values"), HasRows("2"));
    EXPECT_EQ(published, 1);
}

} // namespace
} // namespace corvane::tests
