#include "RandomValue.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <gtest/gtest.h>

#include <bit>
#include <string>

namespace corvane::workbench::json {
namespace {

using Format = utils::json::encoder::Document::Format;

TEST(JsonRoundTrip, AnyValueThatIsWrittenIsReadBackEqual) {
    test::RandomValue random(7);
    for (int round = 0; round < 1'000; ++round) {
        const Value value = random();
        for (const Format format : {Format::Compact, Format::Indented}) {
            const std::string text = value.toString(format);
            const auto read = Value::fromString(text);
            ASSERT_TRUE(read.has_value()) << text;
            ASSERT_EQ(*read, value) << text;
            ASSERT_EQ(read->toString(format), text);
        }
        const Value copy = value;
        ASSERT_EQ(copy, value);
    }
}

TEST(JsonRoundTrip, ADoubleComesBackBitForBit) {
    test::RandomValue random(8);
    for (int round = 0; round < 20'000; ++round) {
        const double number = random.number();
        const std::string text = Value(number).toString(Format::Compact);
        ASSERT_LE(text.size(), 24U);
        const auto read = Value::fromString(text);
        ASSERT_TRUE(read.has_value()) << text;
        ASSERT_TRUE(read->is<double>()) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(read->get<double>()),
                  std::bit_cast<std::uint64_t>(number))
            << text;
    }
}

} // namespace
} // namespace corvane::workbench::json
