// What the encoder writes, the decoder reads back.
#include "utils/json/decoder/ParsedText.hpp"
#include "utils/json/encoder/TextStream.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using corvane::tests::described;
using corvane::tests::ParsedText;
using corvane::tests::TextStream;
using corvane::utils::json::encoder::Array;
using corvane::utils::json::encoder::Document;
using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;

TEST(JsonRoundTrip, KeepsEveryStringOfOneOrTwoBytesThatIsText) {
    std::string all;
    TextStream stream;
    Document document(stream);
    Array array = document.root().writeArray();
    for (int first = 0; first != 256; ++first) {
        for (int second = -1; second != 256; ++second) {
            std::string text(1, static_cast<char>(first));
            if (second >= 0) {
                text.push_back(static_cast<char>(second));
            }
            array.addElement().writeString(text);
            // Malformed bytes are replaced just as the transcoder replaces them.
            all += toUtf8(toWide(text)) + '|';
        }
    }
    document.close();
    ParsedText text(stream.text);
    text.finish();
    auto walk = text.root().asArray();
    std::string read;
    for (const auto& value : walk) {
        read.append(value.asString().view()).append("|");
    }
    EXPECT_TRUE(read == all);
}

TEST(JsonRoundTrip, KeepsRandomBytesReadable) {
    std::mt19937 random(7);
    for (int round = 0; round != 300; ++round) {
        std::string bytes(random() % 200, '\0');
        for (char& byte : bytes) {
            byte = static_cast<char>(random());
        }
        TextStream stream;
        Document document(stream, Document::Format::Indented);
        document.root().writeObject().addMember(bytes).writeString(bytes);
        document.close();
        const std::string expected = toUtf8(toWide(bytes));
        ASSERT_EQ(described(stream.text), "{" + expected + ":\"" + expected + "\"}");
    }
}

} // namespace
