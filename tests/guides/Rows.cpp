// The code of docs/rows.md and docs/members.md at work; CodeBlocks checks that the guides quote it
// as it stands.

#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

namespace kit = corvane::workbench::kit;
namespace model = corvane::workbench::model;
namespace process = corvane::workbench::process;

using namespace kit::literals;

class Dose final : public kit::Row {
public:
    double litres = 0;

private:
    void describe(kit::Form& form) override;

    std::string ingredient_;
    model::ElementReference tank_;
};

class Alarm final : public kit::Row {
    void describe(kit::Form& form) override;

    process::TaskReference task_;
};

class Batch final : public kit::Element {
public:
    [[nodiscard]] double capacity() const noexcept { return capacity_; }

private:
    void describe(kit::Form& form) override;
    [[nodiscard]] kit::State dosesState() const;

    double capacity_ = 0;
    kit::Rows<Dose> doses_;
    kit::Rows<Alarm> alarms_;
};

class Tank final : public kit::Element {
    void describe(kit::Form& form) override;

    bool heated_ = false;
};

void Batch::describe(kit::Form& form) {
    form.number("capacity", "Capacity", capacity_).unit("l").initially(100).then([this] {
        doses_.recheck();
    });
    form.rows("doses", "Doses", doses_)
        .rule([this] { return dosesState(); }, capacity_)
        .proposes(&Dose::litres, 10)
        .required("Add a dose.");
    form.rows("alarms", "Alarms", alarms_).savedWhenNotInitial();
}

kit::State Batch::dosesState() const {
    double sum = 0;
    for (const Dose& dose : doses_) {
        sum += dose.litres;
    }
    return kit::require(sum <= capacity_, "The doses are more than the batch can hold.");
}

void Dose::describe(kit::Form& form) {
    form.text("ingredient", "Ingredient", ingredient_).required("Name the ingredient.");
    form.number("litres", "Amount", litres)
        .unit("l")
        .rule([this] { return litres <= owner<Batch>().capacity() / 2; },
              "One dose fills at most half of the batch.");
    form.reference("tank", "From", tank_)
        .optional()
        .to(model::ElementCategory::Device)
        .savedWhenNotInitial();
    form.displayName([this] { return kit::text("{} l of {}", litres, ingredient_); })
        .follows(litres, ingredient_);
}

void Alarm::describe(kit::Form& form) {
    form.writtenAsValue();
    form.reference("task", "Task", task_);
}

void Tank::describe(kit::Form& form) {
    form.flag("heated", "Heated", heated_);

    form.attribute("level", model::Attribute::Access::ReadOnly, {2, 8});
    form.attribute("temperature", model::Attribute::Access::ReadOnly, {2, 8})
        .onlyIf([this] { return heated_; }, heated_);
    form.event(process::Event::kChanged);
    form.event("overflow");
    form.task("drain");
}

const kit::ElementClass<Batch> kBatch({
    .id = "Guide.Batch",
    .uuid = "27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c21"_uuid,
    .displayName = "Batch",
    .description = "Makes a batch of something.",
    .category = model::ElementCategory::Microservice,
});

const kit::ElementClass<Tank> kTank({
    .id = "Guide.Tank",
    .uuid = "27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c22"_uuid,
    .displayName = "Tank",
    .description = "Holds an ingredient.",
    .category = model::ElementCategory::Device,
});

using namespace corvane::workbench::testing;
using testing::ElementsAre;

class RowsGuide : public testing::Test {
protected:
    Bench bench{kBatch, kTank};
    BenchElement batch = bench.add("Guide.Batch", "B1");
    BenchElement tank = bench.add("Guide.Tank", "T1");
};

TEST_F(RowsGuide, InsertsRowsWithWhatIsProposed) {
    batch.at("doses").insertRow(0);
    batch.at("doses[0].ingredient").set("water");
    batch.at("doses[0].litres").set("20");
    batch.at("doses").insertRow(1);
    batch.at("doses[1].ingredient").set("sugar");
    EXPECT_THAT(batch.at("doses"), HasRows("20 l of water", "30 l of sugar"));
}

TEST_F(RowsGuide, LooksAtTheListWhenARowChanges) {
    batch.at("doses").insertRow(0);
    batch.at("doses").insertRow(1);
    batch.at("doses").insertRow(2);
    for (const char* litres : {"doses[0].litres", "doses[1].litres", "doses[2].litres"}) {
        batch.at(litres).set("40");
    }
    EXPECT_THAT(batch.at("doses"), HasError("The doses are more than the batch can hold."));
    batch.at("capacity").set("70");
    EXPECT_THAT(batch.at("doses[0].litres"), HasError("One dose fills at most half of the batch."));
}

TEST_F(RowsGuide, SavesRowsAsObjectsOrValues) {
    batch.at("doses").insertRow(0);
    batch.at("doses[0].ingredient").set("water");
    batch.at("doses[0].tank").set("T1");
    batch.at("alarms").insertRow(0);
    batch.at("alarms[0].task").set("T1.drain");
    EXPECT_EQ(batch.saved(),
              R"({"capacity":100,"doses":[{"ingredient":"water","litres":0,"tank":"T1"}],)"
              R"("alarms":["T1.drain"]})");
    EXPECT_THAT(batch.at("alarms"), HasRows("T1.drain"));
}

TEST_F(RowsGuide, LimitsReferencesToCategories) {
    batch.at("doses").insertRow(0);
    batch.at("doses[0].tank").set("B1");
    EXPECT_THAT(batch.at("doses[0].tank"), HasError("The element “B1” does not fit here."));
}

TEST_F(RowsGuide, HasMembersOnConditions) {
    EXPECT_THAT(tank.attributes(), ElementsAre("level"));
    tank.at("heated").set("true");
    EXPECT_THAT(tank.attributes(), ElementsAre("level", "temperature"));
    EXPECT_THAT(tank.events(), ElementsAre("changed", "overflow"));
    EXPECT_THAT(tank.tasks(), ElementsAre("drain"));
}

} // namespace
