#include <corvane/workbench/process/Event.hpp>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

namespace {

using corvane::workbench::io::Direction;
using corvane::workbench::process::Event;
using Directions = corvane::utils::core::Flags<Direction>;

static_assert(std::is_copy_constructible_v<Event> && std::is_copy_assignable_v<Event>);
static_assert(std::is_nothrow_move_constructible_v<Event> &&
              std::is_nothrow_move_assignable_v<Event>);
static_assert(std::is_same_v<decltype(std::declval<Event>().name()), std::string&&>);
static_assert(std::is_same_v<decltype(std::declval<Event&>().name()), std::string_view>);
static_assert(std::is_same_v<decltype(std::declval<const Event>().name()), std::string_view>);

TEST(Event, AnEventHasTheNameAndTheDirectionsItWasMadeWith) {
    const Event event("overflow", {Direction::Read, Direction::Write});
    EXPECT_EQ(event.name(), "overflow");
    EXPECT_EQ(event.ioDirections(), Directions::fromBits(3));
}

TEST(Event, DirectionsThatTheLibraryDoesNotKnowAreCarriedThroughUnchanged) {
    const Event event("overflow", Directions::fromBits(0x80000010));
    EXPECT_EQ(event.ioDirections().bits(), 0x80000010u);
}

TEST(Event, ACopyIsIndependentOfItsSource) {
    Event source("overflow", Direction::Read);
    const Event copy = source;
    source = Event("drained", Direction::Write);
    EXPECT_EQ(copy.name(), "overflow");
    EXPECT_EQ(copy.ioDirections(), Directions(Direction::Read));
}

TEST(Event, MovingTakesTheName) {
    Event source("a name too long for the short string optimisation", Direction::Read);
    const char* const text = source.name().data();
    const Event target = std::move(source);
    EXPECT_EQ(target.name().data(), text);
}

TEST(Event, ATemporaryEventGivesUpItsName) {
    Event event("a name too long for the short string optimisation", Direction::Read);
    const char* const text = event.name().data();
    const std::string name = std::move(event).name();
    EXPECT_EQ(name, "a name too long for the short string optimisation");
    EXPECT_EQ(name.data(), text);
}

TEST(Event, EventsAreEqualWhenNameAndDirectionsAre) {
    EXPECT_EQ(Event("a", Direction::Read), Event("a", Direction::Read));
    EXPECT_NE(Event("a", Direction::Read), Event("b", Direction::Read));
    EXPECT_NE(Event("a", Direction::Read), Event("a", Direction::Write));
}

TEST(Event, ChangedIsPredefinedForReading) {
    EXPECT_EQ(Event::kChanged.name(), "changed");
    EXPECT_EQ(Event::kChanged.ioDirections().bits(), 1u);
}

TEST(Event, ConnectedAndDisconnectedArePredefinedWithoutDirections) {
    EXPECT_EQ(Event::kConnected.name(), "connected");
    EXPECT_TRUE(Event::kConnected.ioDirections().none());
    EXPECT_EQ(Event::kDisconnected.name(), "disconnected");
    EXPECT_TRUE(Event::kDisconnected.ioDirections().none());
}

// Initialised before main, like the statics of a skill.
const Event kCopyMadeAtStart = Event::kDisconnected;

TEST(Event, ThePredefinedEventsAreReadyForTheStaticsOfASkill) {
    EXPECT_EQ(kCopyMadeAtStart.name(), "disconnected");
}

} // namespace
