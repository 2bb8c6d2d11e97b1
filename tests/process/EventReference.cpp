#include <corvane/workbench/process/EventReference.hpp>

#include "model/FakeElement.hpp"
#include "model/internal/typedReferences.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::tests {

struct EventReferenceKind : MemberReferenceKind {
    using Reference = workbench::process::EventReference;

    static Reference make(const workbench::model::internal::ElementReferenceData& value) {
        return Reference(value, {});
    }
    static Reference make(workbench::model::internal::ElementReferenceData&& value) {
        return Reference(std::move(value), {});
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Event, TypedReference, EventReferenceKind);

namespace {

using ::testing::ElementsAre;
using workbench::model::Attribute;
using workbench::model::internal::ElementReferenceData;
using workbench::process::Event;
using workbench::process::EventReference;
using workbench::process::EventSearchOptions;

constexpr EventSearchOptions kNone{};
constexpr EventSearchOptions kWithAttributes{true, false};
constexpr EventSearchOptions kForwarded{false, true};

class EventReferenceTest : public ::testing::Test {
protected:
    std::vector<std::string> calls;
    FakeElement pump;
    std::shared_ptr<RecordingProxy> proxy = std::make_shared<RecordingProxy>("pump", calls, &pump);
    ElementReferenceData data = ElementReferenceData(proxy, "", "quality");
};

TEST_F(EventReferenceTest, ResolvesToTheEventWithItsOwnOptions) {
    pump.attributeList.push_back(Attribute::kQuality);
    EXPECT_EQ(EventReference(data, kWithAttributes).event()->name(), "quality");
    EXPECT_EQ(EventReference(data, kNone).event().error(),
              L"the element “plant.valve” does not have an event named “quality”");
    pump.calls.clear();
    EXPECT_FALSE(EventReference(data, kForwarded).event().has_value());
    EXPECT_THAT(pump.takeCalls(), ::testing::Contains("forEachEventImpl(true)"));
}

TEST_F(EventReferenceTest, ExplainsWhyItDoesNotResolve) {
    EXPECT_EQ(EventReference().event().error(), L"empty event key");
}

TEST_F(EventReferenceTest, TheOptionsDefaultToNone) {
    EXPECT_EQ(EventReference().options(), kNone);
    EXPECT_EQ(EventReference(kWithAttributes).options(), kWithAttributes);
    EXPECT_FALSE(static_cast<bool>(EventReference(kWithAttributes)));
}

TEST_F(EventReferenceTest, TakesPartInAnAggregateThatIsInitializedFromEmptyBraces) {
    struct Row {
        EventReference trigger;
    };
    const Row row{};
    EXPECT_EQ(row.trigger.options(), kNone);
    const EventReference copied = {};
    EXPECT_EQ(copied.options(), kNone);
}

TEST_F(EventReferenceTest, ConstructionFromAnotherTakesItsOptions) {
    EventReference source(data, kWithAttributes);
    const EventReference copy(source);
    EXPECT_EQ(copy.options(), kWithAttributes);
    const EventReference moved(std::move(source));
    EXPECT_EQ(moved.options(), kWithAttributes);
}

TEST_F(EventReferenceTest, ConstructionFromAnotherCanReplaceTheOptions) {
    EventReference source(data, kWithAttributes);
    calls.clear();
    const EventReference copy(source, kForwarded);
    EXPECT_EQ(copy.options(), kForwarded);
    EXPECT_EQ(copy.primaryKey(), "pump.quality");
    const EventReference moved(std::move(source), kNone);
    EXPECT_EQ(moved.options(), kNone);
    EXPECT_EQ(moved.primaryKey(), "pump.quality");
    EXPECT_FALSE(static_cast<bool>(source));
    EXPECT_THAT(calls, ElementsAre("pump.attach -> 2"));
    EXPECT_THAT(proxy->registered(), ElementsAre(&moved, &copy));
}

TEST_F(EventReferenceTest, NoAssignmentTouchesTheOptions) {
    EventReference target(kForwarded);
    const EventReference source(data, kWithAttributes);
    target = source;
    EXPECT_EQ(target.options(), kForwarded);
    EXPECT_EQ(target.primaryKey(), "pump.quality");
    target = EventReference(kWithAttributes);
    EXPECT_EQ(target.options(), kForwarded);
    EXPECT_FALSE(static_cast<bool>(target));
    target = data;
    EXPECT_EQ(target.options(), kForwarded);
    target = ElementReferenceData();
    EXPECT_EQ(target.options(), kForwarded);
}

TEST_F(EventReferenceTest, ConstructionFromDataThatIsGivenUpCopiesIt) {
    const EventReference reference(std::move(data), kNone);
    EXPECT_EQ(reference.primaryKey(), "pump.quality");
    EXPECT_EQ(data.primaryKey(), "pump.quality");
}

TEST_F(EventReferenceTest, AnInternalReferenceSavesWithTheImportPrefix) {
    const auto reference =
        EventReference::ImportReference::makeInternalReference("a.b", "connected");
    EXPECT_TRUE(static_cast<bool>(reference));
    EXPECT_EQ(savedText(reference), R"(".import:a.b.connected")");
}

} // namespace
} // namespace corvane::tests
