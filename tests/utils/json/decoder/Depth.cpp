// How much stack the deepest text needs.
#include "onStack.hpp"
#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using corvane::tests::syntaxError;

TEST(JsonDecoderDocument, ReadsTheDeepestTextOnAStackOfHalfAMebibyte) {
    std::string text;
    for (int level = 0; level != 256; ++level) {
        text += "[{\"a\\n\":";
    }
    text += "\"\\u00e9\"";
    for (int level = 0; level != 256; ++level) {
        text += "}]";
    }
    std::string error = "not run";
    corvane::tests::runOnStack(512 * 1024, [&] { error = syntaxError(text); });
    EXPECT_EQ(error, "nothing thrown");
}

} // namespace
