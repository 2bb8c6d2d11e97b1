#include <corvane/utils/json/decoder/Document.hpp>

#include "utils/io/TemporaryFolder.hpp"
#include "utils/json/decoder/ParsedText.hpp"
#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <type_traits>

namespace {

using corvane::tests::decoderError;
using corvane::tests::described;
using corvane::tests::ParsedText;
using corvane::tests::syntaxError;
using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileInputStream;
using corvane::utils::io::MemoryInputStream;
using corvane::utils::json::decoder::AllowLegacyMicrosecondsTag;
using corvane::utils::json::decoder::Document;
using corvane::utils::json::decoder::kAllowLegacyMicroseconds;
using corvane::utils::json::decoder::Location;

static_assert(std::is_empty_v<AllowLegacyMicrosecondsTag>);
static_assert(std::is_same_v<decltype(kAllowLegacyMicroseconds), const AllowLegacyMicrosecondsTag>);

TEST(JsonDecoderDocument, ReadsAFile) {
    const TemporaryFolder folder;
    FileInputStream stream(folder.write("file.json", "{\"a\":\n [1]}\n"));
    Document document(stream);
    EXPECT_EQ(described(document.root()), "{a:[i1]}");
    EXPECT_EQ(decoderError([&] { document.finish(); }), "nothing thrown");
}

TEST(JsonDecoderDocument, ReadsWhatIsLeftOfItsStream) {
    const std::string text = "x[1]";
    MemoryInputStream<char> stream(text);
    (void)stream.get();
    Document document(stream);
    EXPECT_EQ(described(document.root()), "[i1]");
    EXPECT_EQ(document.root().location(), Location(1, 1));
}

TEST(JsonDecoderDocument, FinishesBehindWhitespaceOnly) {
    EXPECT_EQ(syntaxError("[1] \r\n\t "), "nothing thrown");
    EXPECT_EQ(syntaxError("[1] \r\n\t ,"),
              "2:3 JSON syntax error (line 2): unexpected text after the end of the value");
    EXPECT_EQ(syntaxError(std::string("[1]\0", 4)),
              "1:4 JSON syntax error (line 1): unexpected text after the end of the value");
}

TEST(JsonDecoderDocument, ReadsTextThatIsUnevenlyDense) {
    // Room for tokens is made by what was met so far.
    std::string numbers;
    for (int number = 0; number != 20000; ++number) {
        numbers += std::to_string(number % 10) + ",";
    }
    const std::string gap = "\"" + std::string(100000, 'x') + "\"";
    ParsedText denseAtTheEnd("[" + gap + "," + numbers + gap + "]");
    ParsedText denseAtTheBeginning("[" + numbers + gap + "," + gap + "]");
    for (ParsedText* const text : {&denseAtTheEnd, &denseAtTheBeginning}) {
        auto array = text->root().asArray();
        EXPECT_EQ(array.elementCount(), 20002U);
        std::int64_t sum = 0;
        for (const auto& value : array) {
            sum += value.isNumber() ? value.asInt64() : 1000;
        }
        EXPECT_EQ(sum, 92000);
    }
}

TEST(JsonDecoderDocument, AcceptsFiveHundredAndTwelveLevels) {
    const std::string arrays = std::string(512, '[') + std::string(512, ']');
    EXPECT_EQ(syntaxError(arrays), "nothing thrown");
    std::string objects = "1";
    for (int level = 0; level != 512; ++level) {
        objects = "{\"a\":" + objects + "}";
    }
    EXPECT_EQ(syntaxError(objects), "nothing thrown");
    ParsedText text(arrays);
    std::string walked = described(text.root());
    EXPECT_EQ(walked, arrays);
}

TEST(JsonDecoderDocument, RefusesFiveHundredAndThirteenLevels) {
    EXPECT_EQ(syntaxError(std::string(513, '[') + std::string(513, ']')),
              "1:513 JSON syntax error (line 1): objects and arrays are nested deeper than 512 "
              "levels");
    std::string objects = "1";
    for (int level = 0; level != 513; ++level) {
        objects = "{\"a\":" + objects + "}";
    }
    EXPECT_EQ(syntaxError(objects).substr(0, 6), "1:2561");
    EXPECT_EQ(syntaxError("[\n" + std::string(600, '[')).substr(0, 32),
              "2:512 JSON syntax error (line 2)");
}

TEST(JsonDecoderDocument, CountsLevelsAndNotContainers) {
    std::string text = "[";
    for (int count = 0; count != 2000; ++count) {
        text += "[],{},";
    }
    EXPECT_EQ(syntaxError(text + "1]"), "nothing thrown");
}

TEST(JsonDecoderDocument, StopsAtALongRowOfOpeningBracketsAtOnce) {
    EXPECT_EQ(syntaxError(std::string(5000000, '[')).substr(0, 5), "1:513");
}

} // namespace
