// The deepest values that the decoder accepts, on a thread with a small stack.
#include "onStack.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace corvane::workbench::json {
namespace {

using Format = utils::json::encoder::Document::Format;

constexpr std::size_t kKibibyte = 1024;
constexpr std::size_t kStack = 300 * kKibibyte;
// Frames of unoptimised code with AddressSanitizer's guards around each variable are larger.
constexpr std::size_t kInstrumentedStack = 600 * kKibibyte;

void runOnSmallStack(const std::function<void()>& action) {
#if defined(__SANITIZE_ADDRESS__)
    constexpr bool isInstrumented = true;
#elif defined(__has_feature)
    constexpr bool isInstrumented = __has_feature(address_sanitizer);
#else
    constexpr bool isInstrumented = false;
#endif
    tests::runOnStack(isInstrumented ? kInstrumentedStack : kStack, action);
}

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

/// With more members in the innermost object.
std::string insertedInto(std::string text, const std::string& members) {
    return text.insert(text.find("{}") + 1, members);
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

TEST(JsonNesting, 512LevelsAreUsedInEveryWayOnAStackOf300KiB) {
    runOnSmallStack([] {
        useInEveryWay(arrays(512));
        useInEveryWay(objects(512));
    });
}

TEST(JsonNesting, ADuplicateIn512LevelsIsRefusedOnAStackOf300KiB) {
    const std::string text = insertedInto(objects(512), "\"b\":1,\"b\":2");
    std::wstring error;
    runOnSmallStack([&] { error = Value::fromString(text).error(); });
    EXPECT_EQ(error, L"duplicate member \"b\" in JSON object");
}

TEST(JsonNesting, 513LevelsAreRefused) {
    const auto expectRefusal = [](const auto& result) {
        EXPECT_EQ(result.error(),
                  L"Error on line 1: objects and arrays are nested deeper than 512 levels");
    };
    runOnSmallStack([&] {
        expectRefusal(Value::fromString(arrays(513)));
        expectRefusal(Value::fromString(objects(513)));
        expectRefusal(Value::fromString(std::string(1'000'000, '[')));
        expectRefusal(Array::fromString(arrays(513)));
        expectRefusal(Object::fromString(objects(513)));
    });
}

} // namespace
} // namespace corvane::workbench::json
