// Long messages on a small stack.
#include "onStack.hpp"
#include <corvane/workbench/i18n/jsonErrorMessage.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr std::size_t kTenMegabytes = 10'000'000;

// Holds its message once; a copy of ten megabytes more would only cost time.
class LongError : public std::exception {
public:
    explicit LongError(std::string text) : text_(std::move(text)) {}
    [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

private:
    std::string text_;
};

std::wstring messageOnASmallStack(std::string text) {
    const LongError error(std::move(text));
    std::wstring result;
    corvane::tests::runOnStack(512 * 1024,
                               [&] { result = corvane::workbench::i18n::jsonErrorMessage(error); });
    return result;
}

TEST(JsonErrorMessageOnASmallStack, ALongTextAfterTheLineIsKeptWhole) {
    const std::wstring result =
        messageOnASmallStack("error (line 3): " + std::string(kTenMegabytes, 'x'));
    EXPECT_EQ(result.size(), 17 + kTenMegabytes);
    EXPECT_TRUE(result.starts_with(L"Error on line 3: xxx"));
}

TEST(JsonErrorMessageOnASmallStack, ALongTextBeforeTheLineIsDropped) {
    EXPECT_EQ(messageOnASmallStack(std::string(kTenMegabytes, '(') + "(line 3): end"),
              L"Error on line 3: end");
}

TEST(JsonErrorMessageOnASmallStack, ALongMessageWithoutALineIsKeptWhole) {
    EXPECT_EQ(messageOnASmallStack(std::string(kTenMegabytes, 'x')).size(), kTenMegabytes);
}

TEST(JsonErrorMessageOnASmallStack, ManyBlanksBeforeTheNumberAreSkipped) {
    EXPECT_EQ(messageOnASmallStack("(line" + std::string(kTenMegabytes, ' ') + "3): end"),
              L"Error on line 3: end");
}

TEST(JsonErrorMessageOnASmallStack, ManyBlanksAfterTheColonAreSkipped) {
    EXPECT_EQ(messageOnASmallStack("(line 3):" + std::string(kTenMegabytes, '\t') + "end"),
              L"Error on line 3: end");
}

TEST(JsonErrorMessageOnASmallStack, ManyLeadingZerosAreSkipped) {
    EXPECT_EQ(messageOnASmallStack("(line " + std::string(kTenMegabytes, '0') + "3): end"),
              L"Error on line 3: end");
}

TEST(JsonErrorMessageOnASmallStack, ANumberOfManyDigitsIsNoLine) {
    EXPECT_EQ(messageOnASmallStack("(line " + std::string(kTenMegabytes, '9') + "): end").size(),
              kTenMegabytes + 12);
}

TEST(JsonErrorMessageOnASmallStack, ManyPlacesThatOnlyLookLikeALineAreSkipped) {
    constexpr std::string_view kPiece = "(line 1";
    std::string text;
    for (int count = 0; count < 100'000; ++count) {
        text += kPiece;
    }
    EXPECT_EQ(messageOnASmallStack(text + "): end"), L"Error on line 1: end");
}

} // namespace
