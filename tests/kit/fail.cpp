#include <corvane/workbench/kit/fail.hpp>

#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Value.hpp>

#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::tests {
namespace {

namespace decoder = utils::json::decoder;
namespace kit = workbench::kit;

TEST(Fail, HasTheMessageAndThePlaceOfTheValue) {
    utils::io::MemoryInputStream<char> stream("[1,\n  2]");
    decoder::Document document(stream);
    for (decoder::Value& value : document.root().asArray()) {
        if (value.asInt64() == 2) {
            try {
                kit::fail(value, "is wrong");
            } catch (const decoder::Exception& error) {
                EXPECT_EQ(error.location().line(), 2U);
                EXPECT_EQ(error.location().column(), 3U);
            }
            EXPECT_THROW(kit::fail(value, "is wrong"), std::runtime_error);
        }
    }
}

TEST(Fail, LeavesOutAnUnknownPlace) {
    try {
        kit::fail(decoder::Location(), "is wrong");
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "is wrong");
        EXPECT_EQ(dynamic_cast<const decoder::Exception*>(&error), nullptr);
    }
}

} // namespace
} // namespace corvane::tests
