#include <corvane/utils/core/Flags.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

enum class Colour : std::int32_t { Red = 0, Green = 1, Blue = 4, Last = 16, Beyond = 17 };
enum class Wide : std::int64_t { Lowest = std::numeric_limits<std::int64_t>::min(), Top = 31 };

} // namespace

template <>
inline constexpr std::size_t corvane::utils::core::kFlagCount<Colour> = 17;

namespace {

using corvane::utils::core::Flags;

static_assert(std::is_trivially_copyable_v<Flags<Colour>>);
static_assert(sizeof(Flags<Colour>) == 4);
static_assert(std::is_convertible_v<Colour, Flags<Colour>>);
static_assert(!std::is_convertible_v<int, Flags<Colour>>);

template <class F>
std::string outOfRangeText(F&& operation) {
    try {
        operation();
    } catch (const std::out_of_range& error) {
        return error.what();
    }
    return "no std::out_of_range";
}

TEST(Flags, AreEmptyAtFirst) {
    const Flags<Colour> flags;
    EXPECT_EQ(flags.bits(), 0U);
    EXPECT_TRUE(flags.none());
    EXPECT_FALSE(flags.any());
    EXPECT_FALSE(flags.test(Colour::Red));
}

TEST(Flags, KeepEachEnumeratorAtTheBitOfItsValue) {
    EXPECT_EQ(Flags<Colour>(Colour::Red).bits(), 0x1U);
    EXPECT_EQ(Flags<Colour>(Colour::Green).bits(), 0x2U);
    EXPECT_EQ(Flags<Colour>(Colour::Blue).bits(), 0x10U);
    EXPECT_EQ(Flags<Colour>(Colour::Last).bits(), 0x10000U);
    EXPECT_EQ(Flags<Wide>(Wide::Top).bits(), 0x80000000U);
}

TEST(Flags, AreMadeFromAListOfEnumerators) {
    const Flags<Colour> flags{Colour::Red, Colour::Blue, Colour::Red};
    EXPECT_EQ(flags.bits(), 0x11U);
    EXPECT_TRUE(flags.test(Colour::Red));
    EXPECT_FALSE(flags.test(Colour::Green));
    EXPECT_TRUE(flags.test(Colour::Blue));
}

TEST(Flags, TakeBitsAsTheyAre) {
    EXPECT_EQ(Flags<Colour>::fromBits(0xFFFFFFFFU).bits(), 0xFFFFFFFFU);
    EXPECT_EQ(Flags<Colour>::fromBits(0x2U), Flags<Colour>(Colour::Green));
}

TEST(Flags, SetAndResetOneEnumeratorOnly) {
    Flags<Colour> flags(Colour::Red);
    flags.set(Colour::Blue).set(Colour::Blue);
    EXPECT_EQ(flags.bits(), 0x11U);
    flags.reset(Colour::Red).reset(Colour::Green);
    EXPECT_EQ(flags.bits(), 0x10U);
}

TEST(Flags, UniteAndIntersect) {
    const Flags<Colour> left{Colour::Red, Colour::Green};
    const Flags<Colour> right{Colour::Green, Colour::Blue};
    EXPECT_EQ((left | right).bits(), 0x13U);
    EXPECT_EQ((left & right).bits(), 0x2U);
    EXPECT_EQ((left | Colour::Blue).bits(), 0x13U);
    Flags<Colour> flags = left;
    flags |= right;
    EXPECT_EQ(flags.bits(), 0x13U);
    flags &= left;
    EXPECT_EQ(flags, left);
    EXPECT_NE(flags, right);
}

TEST(Flags, RefuseAPositionThatTheEnumerationDoesNotHave) {
    const Flags<Colour> all = Flags<Colour>::fromBits(0xFFFFFFFFU);
    EXPECT_TRUE(all.test(Colour::Last));
    EXPECT_EQ(outOfRangeText([&] { (void)all.test(Colour::Beyond); }), "invalid bitset position");
    EXPECT_EQ(outOfRangeText([&] { (void)all.test(static_cast<Colour>(-1)); }),
              "invalid bitset position");
    EXPECT_EQ(outOfRangeText([&] { (void)all.test(static_cast<Colour>(32)); }),
              "invalid bitset position");
    EXPECT_EQ(outOfRangeText([&] { (void)Flags<Wide>().test(Wide::Lowest); }),
              "invalid bitset position");
}

TEST(Flags, AreUnchangedByARefusedPosition) {
    Flags<Colour> flags(Colour::Red);
    EXPECT_EQ(outOfRangeText([&] { flags.set(Colour::Beyond); }), "invalid bitset position");
    EXPECT_EQ(outOfRangeText([&] { flags.reset(Colour::Beyond); }), "invalid bitset position");
    EXPECT_EQ(flags.bits(), 0x1U);
    EXPECT_EQ(outOfRangeText([] { (void)Flags<Colour>(Colour::Beyond); }),
              "invalid bitset position");
}

} // namespace
