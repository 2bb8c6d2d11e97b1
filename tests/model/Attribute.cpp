#include <corvane/workbench/model/Attribute.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using corvane::workbench::data::DataType;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Event;
using Access = Attribute::Access;
using Directions = corvane::utils::core::Flags<Direction>;

static_assert(std::is_copy_constructible_v<Attribute> && std::is_copy_assignable_v<Attribute>);
static_assert(std::is_nothrow_move_constructible_v<Attribute> &&
              std::is_nothrow_move_assignable_v<Attribute>);
static_assert(std::is_same_v<std::underlying_type_t<Access>, std::int32_t>);
static_assert(
    std::is_same_v<decltype(std::declval<const Attribute&>().dataType()), const DataType&>);
static_assert(
    std::is_same_v<decltype(std::declval<const Attribute&>().changeEvent()), const Event&>);
static_assert(std::is_same_v<decltype(std::declval<Attribute>().changeEvent()), Event&&>);

Attribute level() {
    return Attribute("level", Access::ReadOnly, DataType{3, 4}, {Direction::Read});
}

void expectPredefined(const Attribute& attribute, std::string_view name, DataType dataType,
                      std::uint32_t directions) {
    EXPECT_EQ(attribute.name(), name);
    EXPECT_EQ(static_cast<std::int32_t>(attribute.access()), 0) << name;
    EXPECT_EQ(attribute.dataType(), dataType) << name;
    EXPECT_EQ(attribute.ioDirections().bits(), directions) << name;
}

TEST(Attribute, AnAttributeHasWhatItWasMadeWith) {
    const Attribute attribute("level", Access::ReadOnly, DataType{3, 4},
                              {Direction::Read, Direction::Write});
    EXPECT_EQ(attribute.name(), "level");
    EXPECT_EQ(attribute.access(), Access::ReadOnly);
    EXPECT_EQ(attribute.dataType(), (DataType{3, 4}));
    EXPECT_EQ(attribute.ioDirections().bits(), 3u);
}

TEST(Attribute, TheAccessesHaveTheNumbersOfTheRuntime) {
    EXPECT_EQ(static_cast<int>(Access::Undefined), 0);
    EXPECT_EQ(static_cast<int>(Access::ReadOnly), 1);
    EXPECT_EQ(static_cast<int>(Access::ReadWrite), 2);
    EXPECT_EQ(static_cast<int>(Access::WriteOnly), 3);
}

TEST(Attribute, ItsChangeEventHasItsNameAndDirections) {
    const Attribute attribute = level();
    EXPECT_EQ(attribute.changeEvent().name(), "level");
    EXPECT_EQ(attribute.changeEvent().ioDirections(), Directions(Direction::Read));
}

TEST(Attribute, ItsChangeEventIsTheBeginningOfTheAttributeItself) {
    const Attribute attribute = level();
    EXPECT_EQ(static_cast<const void*>(&attribute.changeEvent()),
              static_cast<const void*>(&attribute));
    EXPECT_EQ(reinterpret_cast<const std::byte*>(&attribute.dataType()) -
                  reinterpret_cast<const std::byte*>(&attribute),
              static_cast<std::ptrdiff_t>(sizeof(Event) + sizeof(Access)));
}

TEST(Attribute, TheChangeEventOfATemporaryAttributeGivesUpItsName) {
    Attribute attribute("a name too long for the short string optimisation", Access::Undefined,
                        DataType(), {});
    const char* const text = attribute.name().data();
    const Event event = std::move(attribute).changeEvent();
    EXPECT_EQ(event.name(), "a name too long for the short string optimisation");
    EXPECT_EQ(event.name().data(), text);
}

TEST(Attribute, SettingAnotherAccessStoresItAndReturnsTrue) {
    Attribute attribute = level();
    EXPECT_TRUE(attribute.setAccess(Access::WriteOnly));
    EXPECT_EQ(attribute.access(), Access::WriteOnly);
}

TEST(Attribute, SettingTheAccessItHasReturnsFalseAndChangesNothing) {
    Attribute attribute = level();
    EXPECT_FALSE(attribute.setAccess(Access::ReadOnly));
    EXPECT_EQ(attribute, level());
}

TEST(Attribute, SettingADataTypeThatDiffersInEitherFieldStoresItAndReturnsTrue) {
    Attribute attribute = level();
    EXPECT_TRUE(attribute.setDataType(DataType{3, 8}));
    EXPECT_EQ(attribute.dataType(), (DataType{3, 8}));
    EXPECT_TRUE(attribute.setDataType(DataType{2, 8}));
    EXPECT_EQ(attribute.dataType(), (DataType{2, 8}));
}

TEST(Attribute, SettingTheDataTypeItHasReturnsFalseAndChangesNothing) {
    Attribute attribute = level();
    EXPECT_FALSE(attribute.setDataType(DataType{3, 4}));
    EXPECT_EQ(attribute, level());
}

TEST(Attribute, SettingItsOwnDataTypeByReferenceChangesNothing) {
    Attribute attribute = level();
    EXPECT_FALSE(attribute.setDataType(attribute.dataType()));
    EXPECT_EQ(attribute.dataType(), (DataType{3, 4}));
}

TEST(Attribute, AttributesAreEqualWhenAllTheirFieldsAre) {
    EXPECT_EQ(level(), level());
    EXPECT_NE(level(), Attribute("Level", Access::ReadOnly, DataType{3, 4}, Direction::Read));
    EXPECT_NE(level(), Attribute("level", Access::ReadWrite, DataType{3, 4}, Direction::Read));
    EXPECT_NE(level(), Attribute("level", Access::ReadOnly, DataType{3, 8}, Direction::Read));
    EXPECT_NE(level(), Attribute("level", Access::ReadOnly, DataType{3, 4}, Direction::Write));
}

TEST(Attribute, ThePredefinedAttributesOfEveryElementHaveNoDirections) {
    expectPredefined(Attribute::kName, "name", {4, 8}, 0);
    expectPredefined(Attribute::kUuid, "UUID", {6, 0}, 0);
    expectPredefined(Attribute::kType, "type", {4, 8}, 0);
    expectPredefined(Attribute::kCategory, "category", {8, 0}, 0);
    expectPredefined(Attribute::kPrimaryKey, "key", {4, 8}, 0);
}

TEST(Attribute, ThePredefinedAttributesOfDevicesAndDataPointsAreRead) {
    expectPredefined(Attribute::kDeviceState, "deviceState", {0, 1}, 1);
    expectPredefined(Attribute::kQuality, "quality", {7, 0}, 1);
    expectPredefined(Attribute::kSourceTime, "sourceTime", {5, 0}, 1);
    expectPredefined(Attribute::kUpdateTime, "updateTime", {5, 0}, 1);
    expectPredefined(Attribute::kChangeTime, "changeTime", {5, 0}, 1);
}

TEST(Attribute, OnlyTheWriteTimeIsPredefinedForWriting) {
    expectPredefined(Attribute::kWriteTime, "writeTime", {5, 0}, 2);
}

TEST(Attribute, TheChangeEventOfQualityIsReadAndThatOfTheNameHasNoDirections) {
    EXPECT_EQ(Attribute::kQuality.changeEvent(), Event("quality", Direction::Read));
    EXPECT_TRUE(Attribute::kName.changeEvent().ioDirections().none());
}

TEST(Attribute, TheNamesOfCommonAttributesOfDataPointsArePredefined) {
    static_assert(std::is_same_v<decltype(Attribute::kAddress), const std::string>);
    EXPECT_EQ(Attribute::kAddress, "address");
    EXPECT_EQ(Attribute::kChannel, "channel");
    EXPECT_EQ(Attribute::kDataType, "dataType");
    EXPECT_EQ(Attribute::kLength, "length");
    EXPECT_EQ(Attribute::kOffset, "offset");
}

// Initialised before main, like the statics of a skill.
const Attribute kCopyMadeAtStart = Attribute::kWriteTime;
const std::string kNameCopiedAtStart = Attribute::kOffset;

TEST(Attribute, ThePredefinedAttributesAreReadyForTheStaticsOfASkill) {
    EXPECT_EQ(kCopyMadeAtStart.name(), "writeTime");
    EXPECT_EQ(kCopyMadeAtStart.dataType(), (DataType{5, 0}));
    EXPECT_EQ(kNameCopiedAtStart, "offset");
}

} // namespace
