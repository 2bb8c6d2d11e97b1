// The code of docs/properties.md at work; CodeBlocks checks that the guide quotes it as it stands.

#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using corvane::utils::core::function_ref;
using corvane::workbench::bindings::Action;
using corvane::workbench::bindings::CrossReferenceController;
using corvane::workbench::bindings::PropertyContainer;
using corvane::workbench::bindings::PropertyController;
using corvane::workbench::bindings::PropertyId;
using corvane::workbench::bindings::PropertyKey;
using ::testing::ElementsAre;

const PropertyKey kMode;
const PropertyKey kTarget;
const PropertyKey kHysteresis;

class Heater final : public PropertyController {
public:
    enum class Mode { Manual, Automatic };

    Mode mode = Mode::Automatic;
    double target = 20;
    double hysteresis = 1;
    mutable int targetChecks = 0;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kTarget, {.state = [this] { return targetState(); },
                                    .visibility = [this] { return mode == Mode::Automatic; },
                                    .visibilityDependencies = {kMode}});
        context.configure(kHysteresis, {.state = [this] { return hysteresisState(); },
                                        .stateDependencies = {kTarget}});
    }

    [[nodiscard]] PropertyState targetState() const {
        ++targetChecks;
        if (target > 0) {
            return {};
        }
        return tl::unexpected(std::wstring(L"The target must lie above 0."));
    }
    [[nodiscard]] PropertyState hysteresisState() const {
        if (hysteresis < target) {
            return {};
        }
        return tl::unexpected(std::wstring(L"The hysteresis must be less than the target."));
    }
};

PropertyController::Subscription observe(Heater& heater, std::vector<std::string>& log) {
    PropertyController::Subscription subscription =
        heater.subscribe(kTarget, {.value = [&] { log.push_back("value"); },
                                   .state = [&] { log.push_back("state"); },
                                   .visibility = [&] { log.push_back("visibility"); }});
    return subscription;
}

TEST(PropertiesGuide, ConfiguringComputesEveryStateOnce) {
    Heater heater;
    static_cast<void>(heater.propertyHandle(kTarget));
    heater.publish(kTarget, Action::Update, 0);
    EXPECT_EQ(heater.targetChecks, 0);

    EXPECT_TRUE(heater.propertyState(kTarget));
    EXPECT_TRUE(heater.propertyVisible(kTarget));
    EXPECT_TRUE(heater.propertyState(kTarget));
    EXPECT_EQ(heater.targetChecks, 1);
}

TEST(PropertiesGuide, PublishingRecomputesThePropertyAndItsDependents) {
    Heater heater;
    std::vector<std::string> log;
    const auto subscription = observe(heater, log);
    EXPECT_EQ(heater.propertyErrorCount(), 0U);

    heater.target = 0;
    heater.publish(kTarget, Action::Update, 0);

    EXPECT_EQ(heater.propertyState(kTarget).error(), L"The target must lie above 0.");
    EXPECT_EQ(heater.propertyState(kHysteresis).error(),
              L"The hysteresis must be less than the target.");
    EXPECT_EQ(heater.propertyErrorCount(), 2U);
    EXPECT_THAT(log, ElementsAre("value", "state"));
}

TEST(PropertiesGuide, AnInvisiblePropertyIsValidAndNotCounted) {
    Heater heater;
    std::vector<std::string> log;
    const auto subscription = observe(heater, log);
    heater.target = 0;
    EXPECT_EQ(heater.propertyErrorCount(), 2U);
    EXPECT_THAT(log, ElementsAre("state"));
    log.clear();

    heater.mode = Heater::Mode::Manual;
    heater.publish(kMode, Action::Update, 0);

    EXPECT_TRUE(heater.propertyState(kTarget));
    EXPECT_EQ(heater.propertyErrorCount(), 1U);
    EXPECT_THAT(log, ElementsAre("state", "visibility"));
}

const PropertyKey kDiameter;
const PropertyKey kHeight;
const PropertyKey kArea;
const PropertyKey kVolume;

class Tank final : public PropertyController {
public:
    explicit Tank(bool namesEverything) : namesEverything_(namesEverything) {}

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        if (namesEverything_) {
            context.configure(kArea, {.valueDependencies = {kDiameter}});
            context.configure(kVolume, {.valueDependencies = {kDiameter, kHeight}});
        } else {
            context.configure(kArea, {.valueDependencies = {kDiameter}});
            context.configure(kVolume, {.valueDependencies = {kArea}});
        }
    }

    bool namesEverything_;
};

std::vector<std::string> whatHearsOfTheDiameter(bool namesEverything) {
    Tank tank(namesEverything);
    std::vector<std::string> log;
    const auto area = tank.subscribe(kArea, {.value = [&] { log.push_back("area"); }});
    const auto volume = tank.subscribe(kVolume, {.value = [&] { log.push_back("volume"); }});
    EXPECT_EQ(tank.propertyErrorCount(), 0U);
    tank.publish(kDiameter, Action::Update, 0);
    return log;
}

TEST(PropertiesGuide, ADependencyIsFollowedOneLevelDeep) {
    EXPECT_THAT(whatHearsOfTheDiameter(false), ElementsAre("area"));
    EXPECT_THAT(whatHearsOfTheDiameter(true), ElementsAre("area", "volume"));
}

const PropertyKey kName;
const PropertyKey kRows;

class Row final : public PropertyController {
public:
    explicit Row(std::string rowName) : name(std::move(rowName)) {}

    std::string name;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kName,
                          {.state = [this] { return nameState(); }, .raisedProperties = {kRows}});
    }

    [[nodiscard]] PropertyState nameState() const {
        if (!name.empty()) {
            return {};
        }
        return tl::unexpected(std::wstring(L"Enter a name."));
    }
};

class Rows final : public PropertyContainer {
public:
    std::vector<std::unique_ptr<Row>> rows;

    void append(std::unique_ptr<Row> row) {
        rows.push_back(std::move(row));
        rows.back()->setEnclosingPropertyContainer(*this, {});
    }

    void removeLast() {
        rows.back()->resetEnclosingPropertyContainer({});
        rows.pop_back();
    }

private:
    void forEachSubPropertyContainer(const function_ref<void(PropertyContainer&)>& callback,
                                     bool /*includeInvisible*/) override {
        for (const auto& row : rows) {
            callback(*row);
        }
    }
    void forEachLocalCrossReference(const function_ref<void(CrossReferenceController&)>&,
                                    bool /*includeInvisible*/) override {}
    std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const PropertyId& property) override {
        raisePropertyNotification(property);
    }
};

class Table final : public PropertyController {
public:
    Rows rows;
    bool showsRows = true;

    void recount() { subPropertyContainerListChanged({}); }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kRows,
                          {.state = [this] { return rowsState(); },
                           .stateDependencies = {kRows},
                           .visibility = [this] { return showsRows; }},
                          {.subPropertyContainer = &rows});
    }

    [[nodiscard]] PropertyState rowsState() const {
        for (std::size_t index = 1; index < rows.rows.size(); ++index) {
            if (rows.rows[index - 1]->name >= rows.rows[index]->name) {
                return tl::unexpected(std::wstring(L"The names must ascend."));
            }
        }
        return {};
    }
};

TEST(PropertiesGuide, TheErrorsOfRowsCountInTheElement) {
    Table table;
    table.rows.append(std::make_unique<Row>("a"));
    table.rows.append(std::make_unique<Row>(""));
    EXPECT_EQ(table.propertyErrorCount(), 2U); // the row's name, and the order

    table.rows.removeLast();
    table.publish(kRows, Action::Remove, 1);
    EXPECT_EQ(table.propertyErrorCount(), 0U);

    table.rows.append(std::make_unique<Row>(""));
    EXPECT_EQ(table.propertyErrorCount(), 1U);
}

TEST(PropertiesGuide, ARowThatChangesPublishesTheListAndRunsItsRule) {
    Table table;
    table.rows.append(std::make_unique<Row>("a"));
    table.rows.append(std::make_unique<Row>("b"));
    EXPECT_EQ(table.propertyErrorCount(), 0U);
    std::vector<std::string> log;
    const auto subscription = table.subscribe(kRows, {.value = [&] { log.push_back("value"); },
                                                      .state = [&] { log.push_back("state"); }});

    table.rows.rows[0]->name = "c";
    table.rows.rows[0]->publish(kName, Action::Update, 0);

    EXPECT_THAT(log, ElementsAre("value", "state"));
    EXPECT_EQ(table.propertyState(kRows).error(), L"The names must ascend.");
}

TEST(PropertiesGuide, ADifferenceTravelsUpwardEvenThroughAnInvisibleProperty) {
    Table table;
    table.rows.append(std::make_unique<Row>("a"));
    EXPECT_EQ(table.propertyErrorCount(), 0U);
    table.showsRows = false;
    table.publishVisibility(kRows);

    table.rows.rows[0]->name = "";
    table.rows.rows[0]->publish(kName, Action::Update, 0);
    EXPECT_EQ(table.propertyErrorCount(), 1U);

    table.recount();
    EXPECT_EQ(table.propertyErrorCount(), 0U);
}

TEST(PropertiesGuide, AnEarlySubscriberHearsOnlyOfItsOwnPropertyUntilTheConfiguration) {
    Heater heater;
    heater.target = 0;
    std::vector<std::string> log;
    const auto subscription = observe(heater, log);

    heater.publish(kTarget, Action::Update, 0);
    EXPECT_THAT(log, ElementsAre("value"));
    EXPECT_EQ(heater.targetChecks, 0);

    EXPECT_EQ(heater.propertyErrorCount(), 2U);
    EXPECT_THAT(log, ElementsAre("value", "state"));
}

TEST(PropertiesGuide, ACopiedSubscriptionIsEmptyAndTheSourceGoesOn) {
    Heater heater;
    std::vector<std::string> log;
    const auto subscription = observe(heater, log);
    const auto copy = subscription; // NOLINT: what it does is the point
    EXPECT_FALSE(copy);

    heater.publish(kTarget, Action::Update, 0);
    EXPECT_THAT(log, ElementsAre("value"));
}

} // namespace
