#include <corvane/utils/string/BasicStaticString.hpp>

#include <corvane/utils/string/BasicStringView.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace {

using corvane::utils::string::BasicStaticString;
using corvane::utils::string::BasicStringView;

static_assert(std::is_same_v<BasicStringView<char>, std::string_view>);
static_assert(std::is_trivially_copyable_v<BasicStaticString<char, 4>>);

template <class F>
std::string lengthErrorText(F&& operation) {
    try {
        operation();
    } catch (const std::length_error& error) {
        return error.what();
    }
    return "no std::length_error";
}

TEST(BasicStaticString, IsEmptyAtFirst) {
    const BasicStaticString<char, 4> text;
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.size(), 0U);
    EXPECT_EQ(text.view(), "");
    EXPECT_EQ(text.capacity(), 4U);
}

TEST(BasicStaticString, GrowsUpToItsCapacity) {
    BasicStaticString<char, 5> text("ab");
    text.append("cd").push_back('e');
    EXPECT_EQ(text.view(), "abcde");
    EXPECT_EQ(std::string(text.begin(), text.end()), "abcde");
    EXPECT_EQ(std::string_view(text.data(), text.size()), "abcde");
    const std::string_view converted = text;
    EXPECT_EQ(converted, "abcde");
}

TEST(BasicStaticString, ReportsSizeAndCapacityWhenItWouldBecomeTooLong) {
    EXPECT_EQ(lengthErrorText([] { (void)BasicStaticString<char, 3>("abcd"); }),
              "corvane::utils::string::BasicStaticString: size of 4 exceeds capacity of 3");
    BasicStaticString<char, 24> text("0123456789");
    EXPECT_EQ(lengthErrorText([&] { text.append("0123456789abcdef"); }),
              "corvane::utils::string::BasicStaticString: size of 26 exceeds capacity of 24");
    BasicStaticString<wchar_t, 0> none;
    EXPECT_EQ(lengthErrorText([&] { none.push_back(L'x'); }),
              "corvane::utils::string::BasicStaticString: size of 1 exceeds capacity of 0");
}

TEST(BasicStaticString, IsUnchangedAfterALengthError) {
    BasicStaticString<char, 3> text("ab");
    EXPECT_THROW(text.append("cd"), std::length_error);
    EXPECT_EQ(text.view(), "ab");
    text.push_back('c');
    EXPECT_THROW(text.push_back('d'), std::length_error);
    EXPECT_EQ(text.view(), "abc");
}

TEST(BasicStaticString, ComparesByItsTextAlone) {
    BasicStaticString<char, 8> text("abcdef");
    text.clear();
    text.append("ab");
    EXPECT_EQ(text, (BasicStaticString<char, 8>("ab")));
    EXPECT_EQ(text, "ab");
    EXPECT_NE(text, "abcdef");
}

TEST(BasicStaticString, WorksAtCompileTimeAndWithWideCharacters) {
    static constexpr auto kText = [] {
        BasicStaticString<wchar_t, 4> text(L"x");
        text.push_back(L'y');
        return text;
    }();
    static_assert(kText.size() == 2);
    EXPECT_EQ(kText.view(), L"xy");
}

} // namespace
