// The code of docs/settings.md and docs/rules.md at work; CodeBlocks checks that the guides quote
// it as it stands.

#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

namespace {

namespace chrono = corvane::workbench::chrono;
namespace kit = corvane::workbench::kit;
namespace model = corvane::workbench::model;
namespace utils = corvane::utils;

using namespace kit::literals;

class Fan final : public kit::Element {
    enum class Drive { FixedSpeed, VariableSpeed };

    void describe(kit::Form& form) override;
    [[nodiscard]] bool isVariable() const { return drive_ == Drive::VariableSpeed; }
    [[nodiscard]] std::wstring energyText() const;
    [[nodiscard]] kit::State batchState() const;

    std::string location_;
    double power_ = 0;
    std::uint16_t blades_ = 0;
    bool reversible_ = false;
    Drive drive_ = Drive::FixedSpeed;
    chrono::Duration runUp_;
    std::string installed_;
    utils::core::Uuid asset_;
    double lowest_ = 0;
    double highest_ = 0;
    std::string batch_;
    corvane::workbench::json::Object vendor_;
};

void Fan::describe(kit::Form& form) {
    form.text("location", "Location", location_).required("Say where the fan is.");
    form.number("power", "Power", power_)
        .unit("kW")
        .initially(1.5)
        .toolTip("At the shaft, at full speed.")
        .rule([](double power) { return power > 0; }, "The power must be greater than 0 kW.");
    form.integer("blades", "Blades", blades_).initially(6).range(2, 24);
    form.flag("reversible", "Reversible", reversible_);
    form.choice("drive", "Drive", drive_, {"fixed speed", "variable speed"});
    form.duration("runUp", "Run-up time", runUp_).initially({3, chrono::Duration::Units::Seconds});
    form.timeStamp("installed", "Installed", installed_).savedWhenNotInitial();
    form.uuid("asset", "Asset", asset_).generated(utils::core::Uuid::generate);

    form.number("lowest", "Lowest speed", lowest_)
        .unit("1/min")
        .initially(200)
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();
    form.number("highest", "Highest speed", highest_)
        .unit("1/min")
        .initially(900)
        .rule([this] { return highest_ > lowest_; }, "The highest speed must lie above the lowest.",
              lowest_)
        .visibleIf([this] { return isVariable(); }, drive_)
        .savedWhenVisible();

    form.text("batch", "Batch", batch_).rule([this] { return batchState(); }).savedWhenNotInitial();
    form.derived("energy", "Energy per day", [this] { return energyText(); })
        .unit("kWh")
        .follows(power_);
    form.json("vendor", "Vendor's settings", vendor_);
}

kit::State Fan::batchState() const {
    for (const char character : batch_) {
        if (character < '0' || character > '9') {
            return kit::error("A batch is a number; “{}” is not a digit.",
                              std::string_view(&character, 1));
        }
    }
    return {};
}

std::wstring Fan::energyText() const {
    return kit::valueText(std::round(power_ * 24));
}

const kit::ElementClass<Fan> kFan({
    .id = "Guide.Fan",
    .uuid = "27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c11"_uuid,
    .displayName = "Fan",
    .description = "Moves air.",
    .category = model::ElementCategory::Device,
});

using namespace corvane::workbench::testing;
using testing::ElementsAre;

class SettingsGuide : public testing::Test {
protected:
    Bench bench{kFan};
    BenchElement fan = bench.add("Guide.Fan", "F1");
};

TEST_F(SettingsGuide, GivesANewElementItsInitialValues) {
    EXPECT_THAT(fan.at("power"), HasText("1.5"));
    EXPECT_THAT(fan.at("blades"), HasText("6"));
    EXPECT_THAT(fan.at("runUp"), HasText("3s"));
    EXPECT_THAT(fan.at("reversible"), HasText("false"));
    EXPECT_EQ(fan.at("power").property().displayName, L"Power (kW)");
    EXPECT_EQ(fan.at("power").property().toolTip, L"At the shaft, at full speed.");
}

TEST_F(SettingsGuide, GivesWhatAFileLeavesOutItsInitialValue) {
    bench.load(R"({"children": [{"Guide.Fan": {"name": "F2", "location": "Roof"}}]})");
    EXPECT_THAT(bench.at("F2.power"), HasText("1.5"));
    EXPECT_THAT(bench.at("F2.asset"), HasText("00000000-0000-0000-0000-000000000000"));
}

TEST_F(SettingsGuide, SavesWhatIsToBeSaved) {
    fan.at("asset").set("27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c12");
    EXPECT_EQ(fan.saved(), R"({"location":"","power":1.5,"blades":6,"reversible":false,)"
                           R"("drive":"fixed speed","runUp":"3s",)"
                           R"("asset":"27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c12"})");
    fan.at("drive").set("variable speed");
    fan.at("batch").set("17");
    fan.at("vendor").set(R"({"code": 3})");
    EXPECT_EQ(fan.saved(), R"({"location":"","power":1.5,"blades":6,"reversible":false,)"
                           R"("drive":"variable speed","runUp":"3s",)"
                           R"("asset":"27f6a2d0-5a0e-4d1b-9a53-0e4f4f4b8c12",)"
                           R"("lowest":200,"highest":900,"batch":"17","vendor":{"code":3}})");
}

TEST_F(SettingsGuide, RefusesWhatIsNoValueAndKeepsWhatBreaksARule) {
    EXPECT_THAT(fan.at("power"), Refuses("a lot", "“a lot” is not a number."));
    fan.at("power").set("-1");
    EXPECT_THAT(fan.at("power"), HasText("-1"));
    EXPECT_THAT(fan.at("power"), HasError("The power must be greater than 0 kW."));
    fan.at("blades").set("1");
    EXPECT_THAT(fan.at("blades"), HasError("The value must lie between 2 and 24."));
    fan.at("batch").set("17b");
    EXPECT_THAT(fan.at("batch"), HasError("A batch is a number; “b” is not a digit."));
    EXPECT_THAT(fan.at("location"), HasError("Say where the fan is."));
}

TEST_F(SettingsGuide, LooksAgainWhenWhatARuleDependsOnChanges) {
    fan.at("drive").set("variable speed");
    fan.at("lowest").set("900");
    EXPECT_THAT(bench, Announced(R"(
        value       F1.lowest: 900
        state       F1.highest: error: The highest speed must lie above the lowest.
        errors      F1: 2
        errors      (root): 2)"));
    fan.at("drive").set("fixed speed");
    EXPECT_THAT(fan.at("highest"), IsHidden());
    EXPECT_THAT(bench, HasErrors(1));
}

TEST_F(SettingsGuide, PublishesADerivedTextWithWhatItFollows) {
    fan.at("power").set("2");
    EXPECT_THAT(fan.at("energy"), HasText("48"));
    EXPECT_THAT(fan.at("energy"), Announced("value       F1.energy: 48"));
    EXPECT_TRUE(fan.at("energy").readOnly());
}

} // namespace
