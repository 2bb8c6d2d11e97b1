// ICU is the judge of how malformed UTF-8 is divided. Like the rule for web pages it writes one
// U+FFFD per maximal subpart, so the two must agree without exception.
#include <corvane/utils/string/detail/Utf16Encoder.hpp>
#include <corvane/utils/string/detail/Utf8Decoder.hpp>
#include <corvane/utils/string/transcode.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {

using corvane::utils::string::toWide;
using corvane::utils::string::detail::Utf16Encoder;
using corvane::utils::string::detail::Utf8Decoder;

/// What ICU makes of the text.
class IcuText {
public:
    explicit IcuText(std::string_view utf8) : units_(utf8.size() + 1) {
        UErrorCode error = U_ZERO_ERROR;
        std::int32_t length = 0;
        u_strFromUTF8WithSub(units_.data(), static_cast<std::int32_t>(units_.size()), &length,
                             utf8.data(), static_cast<std::int32_t>(utf8.size()), 0xFFFD, nullptr,
                             &error);
        EXPECT_TRUE(U_SUCCESS(error));
        units_.resize(static_cast<std::size_t>(length));
    }

    bool operator==(const std::wstring& wide) const {
        return std::equal(
            units_.begin(), units_.end(), wide.begin(), wide.end(),
            [](char16_t left, wchar_t right) { return left == static_cast<char32_t>(right); });
    }

private:
    std::vector<char16_t> units_;
};

/// What the decoder makes of the text when it comes byte by byte.
std::wstring decoded(std::string_view utf8) {
    std::wstring wide;
    wide.reserve(utf8.size());
    const Utf16Encoder encoder;
    const auto sink = [&](char32_t character) {
        encoder.encode(character, [&wide](wchar_t unit) { wide.push_back(unit); });
    };
    Utf8Decoder decoder;
    for (const char byte : utf8) {
        decoder.feed(byte, sink);
    }
    decoder.finish(sink);
    return wide;
}

TEST(Utf8AgainstIcu, AllTextsOfOneAndTwoBytesAreDecodedAlike) {
    std::string text(1, '\0');
    for (int first = 0; first != 256; ++first) {
        text.assign(1, static_cast<char>(first));
        ASSERT_TRUE(IcuText(text) == decoded(text)) << first;
        ASSERT_TRUE(IcuText(text) == toWide(text)) << first;
        text.push_back('\0');
        for (int second = 0; second != 256; ++second) {
            text[1] = static_cast<char>(second);
            const IcuText expected(text);
            ASSERT_TRUE(expected == decoded(text)) << first << ' ' << second;
            ASSERT_TRUE(expected == toWide(text)) << first << ' ' << second;
        }
    }
}

/// Calls check(texts) with all texts of three bytes. Many are checked in one go: the letter behind
/// each ends whatever was begun.
template <class Check>
void forAllTextsOfThreeBytes(Check&& check) {
    std::string texts;
    for (int third = 0; third != 256; ++third) {
        texts += {'\0', '\0', static_cast<char>(third), 'x'};
    }
    for (int first = 0; first != 256; ++first) {
        for (int second = 0; second != 256; ++second) {
            for (std::size_t text = 0; text != texts.size(); text += 4) {
                texts[text] = static_cast<char>(first);
                texts[text + 1] = static_cast<char>(second);
            }
            ASSERT_TRUE(check(texts)) << first << ' ' << second;
        }
    }
}

TEST(Utf8AgainstIcu, AllTextsOfThreeBytesAreDecodedAlikeByteByByte) {
    forAllTextsOfThreeBytes(
        [](const std::string& texts) { return IcuText(texts) == decoded(texts); });
}

TEST(Utf8AgainstIcu, AllTextsOfThreeBytesAreTranscodedAlikeAsAWhole) {
    forAllTextsOfThreeBytes(
        [](const std::string& texts) { return IcuText(texts) == toWide(texts); });
}

TEST(Utf8AgainstIcu, TextsThatEndInsideACharacterAreDecodedAlike) {
    // Three bytes of every sequence of four, at the end of the text.
    for (int first = 0xEE; first != 0xF8; ++first) {
        for (int second = 0x70; second != 0xD0; ++second) {
            for (const int third : {0x00, 0x7F, 0x80, 0x9F, 0xA0, 0xBF, 0xC0, 0xF0, 0xFF}) {
                const std::string text{static_cast<char>(first), static_cast<char>(second),
                                       static_cast<char>(third)};
                const IcuText expected(text);
                ASSERT_TRUE(expected == decoded(text)) << first << ' ' << second << ' ' << third;
                ASSERT_TRUE(expected == toWide(text)) << first << ' ' << second << ' ' << third;
            }
        }
    }
}

} // namespace
