// The deepest values that the decoder accepts, on a thread with a stack of 1 MiB.
#include "onStack.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

namespace corvane::workbench::json {
namespace {

using Format = utils::json::encoder::Document::Format;

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kStack = 8U << 20U; // Instrumented frames are several times as large.
#elif defined(__has_feature)
constexpr std::size_t kStack = (__has_feature(address_sanitizer) ? 8U : 1U) << 20U;
#else
constexpr std::size_t kStack = 1U << 20U;
#endif

std::string arrays(std::size_t levels) {
    return std::string(levels, '[') + std::string(levels, ']');
}

std::string objects(std::size_t levels) {
    std::string text;
    for (std::size_t level = 1; level < levels; ++level) {
        text += "{\"a\":";
    }
    return text + "{}" + std::string(levels - 1, '}');
}

void useInEveryWay(const std::string& text) {
    const auto read = Value::fromString(text);
    ASSERT_TRUE(read.has_value());
    Value copy = *read;
    EXPECT_TRUE(copy == *read);
    EXPECT_EQ(copy.toString(Format::Compact), text);
    EXPECT_FALSE(copy.toString(Format::Indented).empty());
    const Value moved = std::move(copy);
    copy = *read;
    EXPECT_TRUE(moved == copy);
}

TEST(JsonNesting, 512LevelsAreUsedInEveryWayOnAStackOf1MiB) {
    tests::runOnStack(kStack, [] {
        useInEveryWay(arrays(512));
        useInEveryWay(objects(512));
    });
}

TEST(JsonNesting, 513LevelsAreRefused) {
    tests::runOnStack(kStack, [] {
        EXPECT_FALSE(Value::fromString(arrays(513)).has_value());
        EXPECT_FALSE(Value::fromString(objects(513)).has_value());
        EXPECT_FALSE(Value::fromString(std::string(1'000'000, '[')).has_value());
        EXPECT_FALSE(Array::fromString(arrays(513)).has_value());
        EXPECT_FALSE(Object::fromString(objects(513)).has_value());
    });
}

} // namespace
} // namespace corvane::workbench::json
