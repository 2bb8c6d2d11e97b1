#include "TestBench.hpp"
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/kit/Rows.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/testing/savedSettings.hpp>

#include <functional>
#include <stdexcept>

namespace corvane::tests {
namespace {

class Level final : public kit::Row {
public:
    void describe(kit::Form& form) override { form.number("level", "Level", level); }

    double level = 0;
};

class Tank final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.text("label", "Label", label);
        form.number("volume", "Volume", volume).rule([this] { return volume >= 0; }, "Less.");
        form.reference("source", "Source", source).optional();
        form.rows("levels", "Levels", levels);
    }

    std::string label;
    double volume = 0;
    model::ElementReference source;
    kit::Rows<Level> levels;
};

TEST(Identifiers, AreTheSameForAllElementsOfAClass) {
    Tank first;
    Tank second;
    EXPECT_EQ(first.property(first.label).property(), second.property(second.label).property());
    EXPECT_EQ(first.property(first.levels).property(), second.property(second.levels).property());
    EXPECT_NE(first.property(first.label).property(), first.property(first.volume).property());
}

TEST(Identifiers, AreTheSameForACopy) {
    Tank original;
    original.levels.insert(0);
    Tank copy(original);
    EXPECT_EQ(copy.property(copy.label).property(), original.property(original.label).property());
    EXPECT_EQ(copy.levels[0].property(copy.levels[0].level).property(),
              original.levels[0].property(original.levels[0].level).property());
}

TEST(Identifiers, OfReferencesAreTheirOwn) {
    Tank tank;
    EXPECT_EQ(tank.property(tank.source).property(), tank.source.propertyId());
}

TEST(Identifiers, AreThoseOfTheEditors) {
    Tank tank;
    std::vector<bindings::PropertyId> listed;
    tank.forEachEditableProperty([&](const skill::EditableProperty& property) {
        EXPECT_EQ(&property.property.controller(), &tank);
        listed.push_back(property.property.property());
    });
    EXPECT_THAT(listed, ElementsAre(tank.property(tank.label).property(),
                                    tank.property(tank.volume).property(),
                                    tank.property(tank.source).property(),
                                    tank.property(tank.levels).property()));
}

class Reentrant : public ::testing::Test {
protected:
    /// Does it once, while the first setting is being listed.
    void whileListing(const std::function<void(const skill::EditableProperty&)>& doIt) {
        bool isFirst = true;
        tank.forEachEditableProperty([&](const skill::EditableProperty& property) {
            listed.push_back(property.name);
            if (std::exchange(isFirst, false)) {
                doIt(property);
            }
        });
    }

    TestBench<Tank> bench;
    Tank& tank = bench.object();
    std::vector<std::string> listed;
};

TEST_F(Reentrant, DescriptionsAreListedInTheMiddleOfAList) {
    std::size_t count = 0;
    whileListing([&](const skill::EditableProperty&) {
        tank.forEachEditableProperty([&](const skill::EditableProperty&) { ++count; });
    });
    EXPECT_EQ(count, 4U);
    EXPECT_THAT(listed, ElementsAre("label", "volume", "source", "levels"));
}

TEST_F(Reentrant, DescriptionsAreEditedInTheMiddleOfAList) {
    whileListing([](const skill::EditableProperty& property) {
        EXPECT_TRUE(property.setText(L"typed"));
        EXPECT_EQ(property.text(), L"typed");
    });
    EXPECT_EQ(tank.label, "typed");
    EXPECT_THAT(listed, ElementsAre("label", "volume", "source", "levels"));
}

TEST_F(Reentrant, DescriptionsAreSavedAndConfiguredInTheMiddleOfAList) {
    whileListing([this](const skill::EditableProperty&) {
        tank.levels.insert(0);
        EXPECT_EQ(testing::savedSettings(tank),
                  R"({"label":"","volume":0,"source":"","levels":[{"level":0}]})");
        EXPECT_EQ(tank.propertyErrorCount(), 0U);
    });
    EXPECT_THAT(listed, ElementsAre("label", "volume", "source", "levels"));
}

TEST_F(Reentrant, DescriptionsMayBeLeftByAnException) {
    EXPECT_THROW(
        whileListing([](const skill::EditableProperty&) { throw std::runtime_error("enough"); }),
        std::runtime_error);
    whileListing([](const skill::EditableProperty&) {});
    EXPECT_THAT(listed, ElementsAre("label", "label", "volume", "source", "levels"));
}

class Raising final : public kit::Element {
public:
    static const bindings::PropertyKey kRaised;

    void describe(kit::Form& form) override {
        form.number("level", "Level", level).raises(kRaised);
    }
    using kit::Element::changed;

    double level = 0;
};

const bindings::PropertyKey Raising::kRaised;

/// A container that notes what is raised to it.
class Enclosing final : public bindings::PropertyContainer {
public:
    std::vector<bindings::PropertyId> raised;

private:
    void forEachSubPropertyContainer(
        const utils::core::function_ref<void(bindings::PropertyContainer&)>&, bool) override {}
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(bindings::CrossReferenceController&)>&,
        bool) override {}
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const bindings::PropertyId& property) override {
        raised.push_back(property);
    }
};

TEST(RaisedProperty, IsTheOneOfTheEnclosingContainer) {
    Enclosing enclosing;
    Raising element;
    element.setEnclosingPropertyContainer(enclosing, {});
    element.changed(element.level);
    EXPECT_THAT(enclosing.raised, ElementsAre(Raising::kRaised.id()));
}

/// The same element twice, once described and once written by hand.
class Described final : public kit::Element {
public:
    using kit::Element::changed;

    void describe(kit::Form& form) override {
        form.flag("fast", "Fast", fast);
        form.number("low", "Low", low);
        form.number("high", "High", high)
            .rule([this] { return high > low; }, "High must lie above low.", low)
            .visibleIf([this] { return fast; }, fast);
        form.derived("span", "Span", [this] { return kit::valueText(high - low); })
            .follows(low, high);
    }

    bool fast = false;
    double low = 0;
    double high = 1;
};

class Handwritten final : public skill::Element {
public:
    static const bindings::PropertyKey kFast;
    static const bindings::PropertyKey kLow;
    static const bindings::PropertyKey kHigh;
    static const bindings::PropertyKey kSpan;

    void forEachEditableProperty(
        utils::core::function_ref<void(const skill::EditableProperty&)>) override {}

    bool fast = false;
    double low = 0;
    double high = 1;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(
            kHigh,
            {.state = [this] { return kit::require(high > low, "High must lie above low."); },
             .stateDependencies = {kLow},
             .visibility = [this] { return fast; },
             .visibilityDependencies = {kFast}});
        context.configure(kSpan, {.valueDependencies = {kLow, kHigh}});
    }
};

const bindings::PropertyKey Handwritten::kFast;
const bindings::PropertyKey Handwritten::kLow;
const bindings::PropertyKey Handwritten::kHigh;
const bindings::PropertyKey Handwritten::kSpan;

/// Notes what is announced of properties, in its order.
class Record {
public:
    void listen(std::string name, const bindings::PropertyHandle& property) {
        subscriptions_.push_back(property.subscribe({
            .value = [this, name] { lines.push_back("value " + name); },
            .state = [this, name] { lines.push_back("state " + name); },
            .visibility = [this, name] { lines.push_back("visibility " + name); },
        }));
    }
    void listen(bindings::PropertyContainer& container) {
        count_ = container.subscribeToPropertyErrorCount([this] { lines.emplace_back("errors"); });
    }

    std::vector<std::string> lines;

private:
    std::vector<bindings::PropertyController::Subscription> subscriptions_;
    bindings::PropertyContainer::ErrorCountSubscription count_;
};

TEST(Notifications, ComeInTheOrderOfAnElementThatIsWrittenByHand) {
    Described described;
    Handwritten handwritten;
    Record recordOfDescribed;
    Record recordOfHandwritten;
    static_cast<void>(described.propertyErrorCount());
    static_cast<void>(handwritten.propertyErrorCount());
    described.forEachEditableProperty([&](const skill::EditableProperty& property) {
        recordOfDescribed.listen(property.name, property.property);
    });
    recordOfDescribed.listen(described);
    recordOfHandwritten.listen("fast", handwritten.propertyHandle(Handwritten::kFast));
    recordOfHandwritten.listen("low", handwritten.propertyHandle(Handwritten::kLow));
    recordOfHandwritten.listen("high", handwritten.propertyHandle(Handwritten::kHigh));
    recordOfHandwritten.listen("span", handwritten.propertyHandle(Handwritten::kSpan));
    recordOfHandwritten.listen(handwritten);
    const auto publish = [&](const bindings::PropertyKey& key) {
        handwritten.publish(key, bindings::Action::Update, 0);
    };

    described.low = handwritten.low = 5;
    described.changed(described.low);
    publish(Handwritten::kLow);
    described.fast = handwritten.fast = true;
    described.changed(described.fast);
    publish(Handwritten::kFast);
    described.high = handwritten.high = 6;
    described.changed(described.high);
    publish(Handwritten::kHigh);

    EXPECT_THAT(recordOfHandwritten.lines,
                ElementsAre("value low", "value span", "value fast", "state high",
                            "visibility high", "errors", "value high", "state high", "value span",
                            "errors"));
    EXPECT_EQ(recordOfDescribed.lines, recordOfHandwritten.lines);
}

} // namespace
} // namespace corvane::tests
