#include "TestBench.hpp"
#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

namespace corvane::tests {
namespace {

using skill::internal::ElementAccess;

class Row final : public kit::Row {
public:
    void describe(kit::Form& form) override { form.number("level", "Level", level); }

    double level = 0;
};

class Tank final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.flag("heated", "Heated", heated).then([this] { log.emplace_back("then"); });
        const auto lamp = form.flag("lit", "Lit", lit);
        const auto byHandle = form.reference("source", "Source", source).optional();
        form.reference("target", "Target", target).optional();
        form.rows("rows", "Rows", rows);

        form.attribute(model::Attribute::kQuality);
        form.attribute("level", model::Attribute::Access::ReadOnly, {2, 8});
        form.attribute("command", model::Attribute::Access::WriteOnly, {2, 8});
        form.attribute("setPoint", model::Attribute::Access::ReadWrite, {2, 8});
        form.attribute("temperature", model::Attribute::Access::ReadOnly, {2, 8})
            .onlyIf([this] { return heated; }, heated);
        form.event(process::Event::kChanged);
        form.event("blink", io::Direction::Write).onlyIf([this] { return lit; }, lamp);
        form.event("sourced").onlyIf([this] { return static_cast<bool>(source); }, byHandle);
        form.event("targeted").onlyIf([this] { return static_cast<bool>(target); }, target);
        form.task("drain");
        form.task("drainRows").onlyIf([this] { return !rows.empty(); }, rows);
        static const process::Task kStop("stop");
        form.task(kStop);
    }
    using kit::Element::changed;

    bool heated = false;
    bool lit = false;
    model::ElementReference source;
    model::ElementReference target;
    kit::Rows<Row> rows;
    std::vector<std::string> log;
};

class Members : public ::testing::Test {
protected:
    TestBench<Tank> bench;
    BenchElement element = bench.element("E");
};

TEST_F(Members, AreThoseOfTheDescription) {
    EXPECT_THAT(element.attributes(), ElementsAre("quality", "level", "command", "setPoint"));
    EXPECT_THAT(element.events(), ElementsAre("changed"));
    EXPECT_THAT(element.tasks(), ElementsAre("drain", "stop"));
}

TEST_F(Members, CanBeReadOrWrittenAsTheirAccessSays) {
    std::vector<std::string> directions;
    ElementAccess::forEachAttribute(bench.object(), [&](const model::Attribute& attribute) {
        std::string text(attribute.name());
        text += attribute.ioDirections().test(io::Direction::Read) ? " r" : "";
        text += attribute.ioDirections().test(io::Direction::Write) ? " w" : "";
        if (attribute.name() == "level") {
            EXPECT_EQ(attribute.access(), model::Attribute::Access::ReadOnly);
            EXPECT_EQ(attribute.dataType(), (data::DataType{2, 8}));
        }
        directions.push_back(text);
        return false;
    });
    EXPECT_THAT(directions, ElementsAre("quality r", "level r", "command w", "setPoint r w"));
}

TEST_F(Members, HaveTheDirectionsOfTheirEvents) {
    bench.object().lit = true;
    ElementAccess::forEachEvent(bench.object(), [](const process::Event& event) {
        if (event.name() == "blink") {
            EXPECT_EQ(event.ioDirections(), io::Direction::Write);
        }
        return false;
    });
}

TEST_F(Members, AreVisitedUntilOneIsFound) {
    std::vector<std::string> visited;
    EXPECT_TRUE(ElementAccess::forEachAttribute(bench.object(), [&](const model::Attribute& seen) {
        visited.emplace_back(seen.name());
        return seen.name() == "level";
    }));
    EXPECT_THAT(visited, ElementsAre("quality", "level"));
    EXPECT_FALSE(
        ElementAccess::forEachTask(bench.object(), [](const process::Task&) { return false; }));
}

TEST_F(Members, AreAnnouncedAfterTheSettingWasTypedAndItsActionsDone) {
    element.at("heated").set("true");
    EXPECT_THAT(bench, Announced(R"(
        value       E.heated: true
        members     E)"));
    EXPECT_THAT(element.attributes(),
                ElementsAre("quality", "level", "command", "setPoint", "temperature"));
    EXPECT_THAT(bench.object().log, ElementsAre("then"));
}

TEST_F(Members, AreAnnouncedWhenAHandleIsWhatTheyDependOn) {
    element.at("lit").set("true");
    EXPECT_THAT(bench, Announced(R"(
        value       E.lit: true
        members     E)"));
    EXPECT_THAT(element.events(), ElementsAre("changed", "blink"));
}

TEST_F(Members, AreAnnouncedAfterAChangeByTheSkill) {
    element.at("rows").insertRow(0); // listens to the element's properties
    bench.object().heated = true;
    bench.object().changed(bench.object().heated);
    EXPECT_THAT(bench.announced(), ::testing::Contains("value       E.heated: true"));
    EXPECT_EQ(bench.announced().back(), "members     E");
}

TEST_F(Members, AreAnnouncedAfterAReferenceHasChanged) {
    element.at("target").set("E");
    EXPECT_THAT(element.events(), ElementsAre("changed", "targeted"));
    EXPECT_THAT(bench.announced(), ::testing::Contains("members     E"));
}

TEST_F(Members, AreAnnouncedAfterAReferenceHasChangedThatAHandleNames) {
    element.at("source").set("E");
    EXPECT_THAT(element.events(), ElementsAre("changed", "sourced"));
    EXPECT_THAT(bench.announced(), ::testing::Contains("members     E"));
}

TEST_F(Members, AreAnnouncedAfterAListHasChanged) {
    element.at("rows").insertRow(0);
    EXPECT_THAT(element.tasks(), ElementsAre("drain", "drainRows", "stop"));
    EXPECT_THAT(bench, Announced(R"(
        value       E.rows: 1 row  (row 0 inserted)
        members     E)"));
    element.at("rows").removeRow(0);
    EXPECT_THAT(bench.announced(), ::testing::Contains("members     E"));
    EXPECT_THAT(element.tasks(), ElementsAre("drain", "stop"));
}

TEST_F(Members, AreNotAnnouncedAfterOtherChanges) {
    element.at("rows").insertRow(0);
    element.at("rows[0].level").set("2");
    EXPECT_THAT(element.at("heated"), Announced(""));
}

} // namespace
} // namespace corvane::tests
