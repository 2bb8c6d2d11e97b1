#include "json/encoder/detail/quote.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using namespace corvane::utils::json::encoder::detail;

TEST(JsonQuote, CopiesPlainTextsOfEveryLengthAndNothingElse) {
    for (std::size_t length = 0; length != 70; ++length) {
        std::string text;
        for (std::size_t index = 0; index != length; ++index) {
            text += static_cast<char>('A' + index % 26);
        }
        std::string copy(length + 1, '!');
        ASSERT_TRUE(copyIfPlain(text, copy.data()));
        ASSERT_EQ(copy, text + '!');
    }
}

TEST(JsonQuote, TellsEveryByteAtEveryPlaceOfATextOfEveryLength) {
    for (std::size_t length = 1; length != 42; ++length) {
        for (std::size_t place = 0; place != length; ++place) {
            for (int code = 0; code != 256; ++code) {
                std::string text(length, '!');
                text[place] = static_cast<char>(code);
                std::string copy(length, '\0');
                const bool isPlain = code >= 0x20 && code < 0x80 && code != '"' && code != '\\';
                ASSERT_EQ(copyIfPlain(text, copy.data()), isPlain)
                    << code << " at " << place << " of " << length;
            }
        }
    }
}

TEST(JsonQuote, WritesTheQuotesAroundAPlainText) {
    std::string room(6, '!');
    EXPECT_EQ(quoteIfPlain("abc", room.data()), room.data() + 5);
    EXPECT_EQ(room, "\"abc\"!");
    EXPECT_EQ(quoteIfPlain("", room.data()), room.data() + 2);
    EXPECT_EQ(quoteIfPlain("a\n", room.data()), nullptr);
}

} // namespace
