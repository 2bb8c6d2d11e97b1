#include <corvane/workbench/host/elementName.hpp>

#include <gtest/gtest.h>

namespace {

using corvane::workbench::host::checkElementName;

std::string reason(std::string_view name) {
    const auto result = checkElementName(name);
    return result ? "valid" : result.error();
}

TEST(ElementName, MayBeAnyPlainText) {
    EXPECT_EQ(reason("pump"), "valid");
    EXPECT_EQ(reason("Pump 7 (Süd)"), "valid");
    EXPECT_EQ(reason("a[b"), "valid");
    EXPECT_EQ(reason("a]b"), "valid");
    EXPECT_EQ(reason(" "), "valid");
}

TEST(ElementName, InBracketsMayHoldDotsAndOpeningBrackets) {
    EXPECT_EQ(reason("[a.b]"), "valid");
    EXPECT_EQ(reason("[a[b]"), "valid");
    EXPECT_EQ(reason("[.]"), "valid");
}

TEST(ElementName, IsNotEmpty) {
    EXPECT_EQ(reason(""), "an element name must not be empty");
}

TEST(ElementName, WithADotNeedsBrackets) {
    EXPECT_EQ(reason("a.b"),
              "the element name “a.b” contains “.” and must be enclosed in brackets");
    EXPECT_EQ(reason("a[.]"),
              "the element name “a[.]” contains “.” and must be enclosed in brackets");
}

TEST(ElementName, ClosesItsBracketAtTheEndAndOnlyThere) {
    EXPECT_EQ(reason("[a"), "“[” without “]” in the element name “[a”");
    EXPECT_EQ(reason("[a]b"), "closing “]” must be at the end of the element name “[a]b”");
    EXPECT_EQ(reason("[a]]"), "closing “]” must be at the end of the element name “[a]]”");
    EXPECT_EQ(reason("[]"), "an empty set of “[]” is not a valid element name");
}

TEST(ElementName, IsValidUtf8) {
    EXPECT_NE(reason("\xC3").find("is not valid UTF-8"), std::string::npos);
    EXPECT_EQ(reason("\xEF\xBF\xBD"), "valid");
}

TEST(ElementName, IsCutShortInTheMessage) {
    const std::string text = reason("[" + std::string(1000, 'x'));
    EXPECT_EQ(text, "“[” without “]” in the element name “[" + std::string(199, 'x') + "…”");
}

} // namespace
