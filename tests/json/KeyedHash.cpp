#include "../../src/json/internal/KeyedHash.hpp"

#include "collidingNames.hpp"
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::json::internal {
namespace {

/// The bytes 0, 1, 2 and so on.
std::string bytesUpTo(std::size_t count) {
    std::string bytes;
    while (bytes.size() != count) {
        bytes += static_cast<char>(bytes.size());
    }
    return bytes;
}

TEST(JsonKeyedHash, IsSipHash13) {
    // As another implementation gives it for a key of zeros.
    constexpr KeyedHash hash(0, 0);
    EXPECT_EQ(hash("speed"), 0x05D3'2E4C'E738'B552U);
    EXPECT_EQ(hash(bytesUpTo(1)), 0x68A9'1412'8E01'E473U);
    EXPECT_EQ(hash(bytesUpTo(7)), 0x2F09'8AB0'C751'325AU);
    EXPECT_EQ(hash(bytesUpTo(8)), 0xEAD4'11E6'7EBE'2EEAU);
    EXPECT_EQ(hash(bytesUpTo(9)), 0x7592'7F9D'9512'4362U);
    EXPECT_EQ(hash(bytesUpTo(15)), 0xF30E'B725'BB91'C9EAU);
    EXPECT_EQ(hash(bytesUpTo(16)), 0x8972'1884'33A5'C5B7U);
    EXPECT_EQ(hash(bytesUpTo(17)), 0x4883'C49A'2C00'9C1DU);
    EXPECT_EQ(hash(bytesUpTo(40)), 0x95BC'321A'B41D'8206U);
}

TEST(JsonKeyedHash, IsAnotherUnderEachKey) {
    const std::uint64_t hash = KeyedHash(1, 2)("speed");
    EXPECT_EQ(KeyedHash(1, 2)("speed"), hash);
    EXPECT_NE(KeyedHash(0, 2)("speed"), hash);
    EXPECT_NE(KeyedHash(1, 0)("speed"), hash);
    EXPECT_NE(KeyedHash(2, 1)("speed"), hash);
}

TEST(JsonKeyedHash, OfThisProcessStaysTheSameAndHasAKeyOfItsOwn) {
    EXPECT_EQ(KeyedHash::ofThisProcess()("speed"), KeyedHash::ofThisProcess()("speed"));
    EXPECT_NE(KeyedHash::ofThisProcess()("speed"), KeyedHash(0, 0)("speed"));
}

/// How many slots of a table with two slots a name are looked at, at most, to enter one of them.
template <class Hash>
std::size_t longestSearch(const std::vector<std::string>& names, const Hash& hash) {
    std::vector<bool> slots(std::bit_ceil(2 * names.size()));
    std::size_t longest = 0;
    for (const std::string& name : names) {
        std::size_t steps = 1;
        for (std::size_t slot = hash(name) % slots.size(); slots[slot];
             slot = (slot + 1) % slots.size()) {
            ++steps;
        }
        slots[(hash(name) + steps - 1) % slots.size()] = true;
        longest = std::max(longest, steps);
    }
    return longest;
}

constexpr std::size_t kCount = 8192;
/// Names that are spread by chance need about 30.
constexpr std::size_t kFewSteps = 200;

TEST(JsonKeyedHash, SpreadsNamesThatCollideUnderTheStandardHash) {
    const std::hash<std::string_view> standard;
    const auto names = tests::findCollidingNames(kCount, standard);
    EXPECT_GT(longestSearch(names, standard), kCount / 2); // they do collide
    EXPECT_LT(longestSearch(names, KeyedHash::ofThisProcess()), kFewSteps);
}

TEST(JsonKeyedHash, SpreadsNamesThatCollideUnderAnotherKey) {
    constexpr KeyedHash known(0, 0);
    const auto names = tests::findCollidingNames(kCount, known);
    EXPECT_GT(longestSearch(names, known), kCount / 2);
    EXPECT_LT(longestSearch(names, KeyedHash::ofThisProcess()), kFewSteps);
}

/// The shortest of three decodings.
std::chrono::steady_clock::duration decodingTime(const std::string& text) {
    using Clock = std::chrono::steady_clock;
    auto shortest = Clock::duration::max();
    for (int round = 0; round != 3; ++round) {
        const auto begin = Clock::now();
        EXPECT_TRUE(Object::fromString(text).has_value());
        shortest = std::min(shortest, Clock::now() - begin);
    }
    return shortest;
}

TEST(JsonObject, IsDecodedAboutAsFastWhateverItsNames) {
    const auto names = tests::findCollidingNames(40'000, std::hash<std::string_view>());
    const auto chosen = decodingTime(tests::objectWithNames(names));
    const auto ordinary = decodingTime(tests::objectWithNames(tests::ordinaryNamesLike(names)));
    // Searching through all names before would take hundreds of times as long.
    EXPECT_LT(chosen / ordinary, 20);
}

} // namespace
} // namespace corvane::workbench::json::internal
