#include <corvane/utils/json/encoder/Document.hpp>

#include "utils/json/encoder/TextStream.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using corvane::tests::TextStream;
using corvane::utils::json::encoder::Array;
using corvane::utils::json::encoder::Document;
using corvane::utils::json::encoder::Object;
using corvane::utils::json::encoder::Value;
using Format = Document::Format;

/// What is written when the operation describes the root value.
template <class F>
std::string encoded(F&& describeRoot, Format format = Format::Compact) {
    TextStream stream;
    Document document(stream, format);
    describeRoot(document.root());
    document.close();
    return stream.text;
}

std::string encodedString(std::string_view text) {
    return encoded([text](Value root) { root.writeString(text); });
}

/// The same, through a buffer that has room for all of it.
std::string encodedStringInOneGo(std::string_view text) {
    TextStream stream(1000);
    Document document(stream);
    document.root().writeString(text);
    document.close();
    return stream.text;
}

void describeEverything(Value root) {
    Object object = root.writeObject();
    object.addMember("string").writeString("text");
    object.addMember("number").writeNumber("-1.5e3");
    object.addMember("true").writeBool(true);
    object.addMember("false").writeBool(false);
    object.addMember("null").writeNull();
    Array array = object.addMember("array").writeArray();
    array.addElement().writeNumber("1");
    Object inner = array.addElement().writeObject();
    inner.addMember("a").writeArray();
    inner.addMember("b").writeObject();
    array.addElement().writeNumber("2");
    object.addMember("last").writeString("");
}

TEST(JsonEncoder, WritesAllKindsCompactly) {
    EXPECT_EQ(encoded(describeEverything),
              R"({"string":"text","number":-1.5e3,"true":true,"false":false,"null":null,)"
              R"("array":[1,{"a":[],"b":{}},2],"last":""})");
}

TEST(JsonEncoder, WritesAllKindsIndented) {
    EXPECT_EQ(encoded(describeEverything, Format::Indented), R"({
  "string": "text",
  "number": -1.5e3,
  "true": true,
  "false": false,
  "null": null,
  "array": [
    1,
    {
      "a": [],
      "b": {}
    },
    2
  ],
  "last": ""
}
)");
}

TEST(JsonEncoder, WritesASingleValueAsADocument) {
    EXPECT_EQ(encoded([](Value root) { root.writeBool(true); }), "true");
    EXPECT_EQ(encoded([](Value root) { root.writeNull(); }), "null");
    EXPECT_EQ(encoded([](Value root) { root.writeNumber("250"); }), "250");
    EXPECT_EQ(encoded([](Value root) { root.writeNumber("250"); }, Format::Indented), "250\n");
    EXPECT_EQ(encoded([](Value root) { root.writeObject(); }), "{}");
    EXPECT_EQ(encoded([](Value root) { root.writeArray(); }, Format::Indented), "[]\n");
}

TEST(JsonEncoder, WritesNullForAValueThatIsNeverWritten) {
    EXPECT_EQ(encoded([](Value) {}), "null");
    EXPECT_EQ(encoded([](Value root) {
                  Object object = root.writeObject();
                  object.addMember("a");
                  object.addMember("b");
              }),
              R"({"a":null,"b":null})");
    EXPECT_EQ(encoded([](Value root) {
                  Array array = root.writeArray();
                  array.addElement();
                  array.addElement().writeArray().addElement();
                  array.addElement().writeNumber("1");
              }),
              "[null,[null],1]");
}

TEST(JsonEncoder, CompletesInnerContainersWhenAnOuterOneGoesOn) {
    EXPECT_EQ(encoded([](Value root) {
                  Array outer = root.writeArray();
                  Array middle = outer.addElement().writeArray();
                  Object inner = middle.addElement().writeObject();
                  inner.addMember("a").writeArray().addElement();
                  outer.addElement().writeNumber("1");
              }),
              R"([[{"a":[null]}],1])");
}

TEST(JsonEncoder, EscapesOnlyWhatMustBeEscaped) {
    EXPECT_EQ(encodedString("\"\\"), R"("\"\\")");
    EXPECT_EQ(encodedString("\b\f\n\r\t"), R"("\b\f\n\r\t")");
    EXPECT_EQ(encodedString(std::string_view("\0\x01\x0B\x0E\x1F", 5)),
              R"("\u0000\u0001\u000b\u000e\u001f")");
    EXPECT_EQ(encodedString("/ \x7F '<>&"), "\"/ \x7F '<>&\"");
    EXPECT_EQ(encodedString("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xE2\x80\xA8"),
              "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xE2\x80\xA8\"");
}

TEST(JsonEncoder, EscapesNamesAsStrings) {
    EXPECT_EQ(encoded([](Value root) { root.writeObject().addMember("a\"\n").writeNull(); }),
              R"({"a\"\n":null})");
}

TEST(JsonEncoder, EscapesWhereverItIsInAText) {
    EXPECT_EQ(encodedString("\"middle\"end"), R"("\"middle\"end")");
    EXPECT_EQ(encodedString("start\nmiddle\n"), R"("start\nmiddle\n")");
    EXPECT_EQ(encodedString(std::string(100, 'x') + '\n' + std::string(100, 'y')),
              '"' + std::string(100, 'x') + "\\n" + std::string(100, 'y') + '"');
}

TEST(JsonEncoder, WritesAReplacementForMalformedText) {
    EXPECT_EQ(encodedString("a\xFF"
                            "b"),
              "\"a\xEF\xBF\xBD"
              "b\"");
    EXPECT_EQ(encodedString("\xF0\x9F\x98"), "\"\xEF\xBF\xBD\"");
    EXPECT_EQ(encodedString("\xED\xA0\x80"), "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"");
    EXPECT_EQ(encodedString("\xC3\xA4\xC3"), "\"\xC3\xA4\xEF\xBF\xBD\"");
}

TEST(JsonEncoder, RefusesToWriteAValueTwice) {
    TextStream stream;
    Document document(stream);
    Value root = document.root();
    root.writeNumber("1");
    EXPECT_THROW(root.writeNumber("2"), std::logic_error);
    EXPECT_THROW(document.root().writeNull(), std::logic_error);
    document.close();
    EXPECT_THROW(root.writeArray(), std::logic_error);
    EXPECT_EQ(stream.text, "1");
}

TEST(JsonEncoder, RefusesToAddToAContainerThatIsComplete) {
    TextStream stream;
    Document document(stream);
    Array outer = document.root().writeArray();
    Array first = outer.addElement().writeArray();
    Value pending = first.addElement();
    Object second = outer.addElement().writeObject();
    EXPECT_THROW((void)first.addElement(), std::logic_error);
    EXPECT_THROW(pending.writeNull(), std::logic_error);
    second.addMember("a");
    document.close();
    EXPECT_THROW((void)outer.addElement(), std::logic_error);
    EXPECT_THROW((void)second.addMember("b"), std::logic_error);
    EXPECT_EQ(stream.text, R"([[null],{"a":null}])");
}

TEST(JsonEncoder, ClosesOnceAndFlushesItsStream) {
    TextStream stream;
    Document document(stream, Format::Indented);
    document.root().writeArray();
    document.close();
    EXPECT_EQ(stream.text, "[]\n");
    document.close();
    stream.flush();
    EXPECT_EQ(stream.text, "[]\n");
}

TEST(JsonEncoder, LeavesItsStreamOpen) {
    TextStream stream;
    {
        Document document(stream);
        document.root().writeNull();
        document.close();
    }
    {
        Document document(stream);
        document.root().writeBool(true);
        document.close();
    }
    EXPECT_EQ(stream.text, "nulltrue");
}

TEST(JsonEncoder, WritesAnyDepth) {
    TextStream stream;
    Document document(stream);
    Value value = document.root();
    for (int level = 0; level != 10000; ++level) {
        value = value.writeArray().addElement();
    }
    document.close();
    EXPECT_EQ(stream.text, std::string(10000, '[') + "null" + std::string(10000, ']'));
}

TEST(JsonEncoder, WritesTheSameWhereverTheBufferEnds) {
    const auto describe = [](Value root) {
        Array array = root.writeArray();
        describeEverything(array.addElement());
        array.addElement().writeNumber(
            corvane::utils::string::BasicStaticString<char, 24>("-0.0012345678901234567"));
        array.addElement().writeString("a text \xE3\x81\x82\xE3\x81\x84 of some \"length\"");
        array.addElement();
        array.addElement().writeArray().addElement().writeObject().addMember("unwritten");
    };
    for (const Format format : {Format::Compact, Format::Indented}) {
        const std::string expected = encoded(describe, format);
        for (std::size_t size = 1; size != expected.size() + 30; ++size) {
            TextStream stream(size);
            Document document(stream, format);
            describe(document.root());
            document.close();
            ASSERT_EQ(stream.text, expected) << "with a buffer of " << size;
        }
    }
    EXPECT_EQ(encoded(describe),
              R"([{"string":"text","number":-1.5e3,"true":true,"false":false,"null":null,)"
              R"("array":[1,{"a":[],"b":{}},2],"last":""},-0.0012345678901234567,)"
              "\"a text \xE3\x81\x82\xE3\x81\x84 of some \\\"length\\\"\""
              R"(,null,[{"unwritten":null}]])");
}

TEST(JsonEncoder, WritesASpecialByteAtEveryPlaceOfATextOfEveryLength) {
    const std::vector<std::pair<char, std::string>> specials{
        {'"', "\\\""},     {'\\', "\\\\"},           {'\n', "\\n"},
        {'\0', "\\u0000"}, {'\x1F', "\\u001f"},      {'\x80', "\xEF\xBF\xBD"},
        {' ', " "},        {'\xFF', "\xEF\xBF\xBD"}, {'\x7F', "\x7F"},
    };
    for (std::size_t length = 1; length != 42; ++length) {
        for (std::size_t place = 0; place != length; ++place) {
            for (const auto& [special, written] : specials) {
                std::string text(length, 'x');
                text[place] = special;
                const std::string expected = '"' + std::string(place, 'x') + written +
                                             std::string(length - place - 1, 'x') + '"';
                ASSERT_EQ(encodedString(text), expected);
                ASSERT_EQ(encodedStringInOneGo(text), expected);
            }
        }
    }
}

TEST(JsonEncoder, WritesNamesOfEveryLength) {
    for (std::size_t length = 0; length != 42; ++length) {
        TextStream stream(1000);
        Document document(stream);
        Object object = document.root().writeObject();
        const std::string name(length, 'n');
        object.addMember(name).writeBool(true);
        object.addMember(name + '\n').writeBool(false);
        document.close();
        ASSERT_EQ(stream.text, "{\"" + name + "\":true,\"" + name + "\\n\":false}");
    }
}

TEST(JsonEncoder, KeepsWellFormedSequencesWhereverTheyAre) {
    const std::array<std::string_view, 12> sequences{
        "\xC2\x80",     "\xDF\xBF",     "\xE0\xA0\x80",     "\xE1\x80\x80",
        "\xE3\x81\x82", "\xEC\xBF\xBF", "\xED\x9F\xBF",     "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"};
    for (const std::string_view padding : {"x", "\xE3\x81\x82", "\xC3\xA4"}) {
        std::string before;
        for (int count = 0; count != 20; ++count, before += padding) {
            for (const std::string_view sequence : sequences) {
                for (const std::string_view after : {"", "y", "\xE3\x81\x84", "12345678"}) {
                    const std::string text = before + std::string(sequence) + std::string(after);
                    ASSERT_EQ(encodedStringInOneGo(text), '"' + text + '"');
                }
            }
        }
    }
}

TEST(JsonEncoder, ReplacesMalformedSequencesWhereverTheyAre) {
    const std::vector<std::pair<std::string_view, int>> malformed{{"\x80", 1},
                                                                  {"\xBF\xBF", 2},
                                                                  {"\xC0\x80", 2},
                                                                  {"\xC1\xBF", 2},
                                                                  {"\xC3", 1},
                                                                  {"\xE0\x9F\xBF", 3},
                                                                  {"\xE3\x81", 1},
                                                                  {"\xE3", 1},
                                                                  {"\xED\xA0\x80", 3},
                                                                  {"\xED\xBF\xBF", 3},
                                                                  {"\xF0\x8F\xBF\xBF", 4},
                                                                  {"\xF0\x9F\x98", 1},
                                                                  {"\xF4\x90\x80\x80", 4},
                                                                  {"\xF5", 1},
                                                                  {"\xFE\xFF", 2}};
    for (const std::string_view padding : {"x", "\xE3\x81\x82", "\xC3\xA4"}) {
        std::string before;
        for (int count = 0; count != 20; ++count, before += padding) {
            for (const auto& [bytes, replacements] : malformed) {
                std::string expected = '"' + before;
                for (int index = 0; index != replacements; ++index) {
                    expected += "\xEF\xBF\xBD";
                }
                for (const std::string_view after :
                     {"", "y", "\xE3\x81\x84", "\xE3\x81\x84\xE3\x81\x86\xE3\x81\x88"}) {
                    const std::string text = before + std::string(bytes) + std::string(after);
                    ASSERT_EQ(encodedStringInOneGo(text), expected + std::string(after) + '"');
                }
            }
        }
    }
}

TEST(JsonEncoder, ClosesManyContainersAtOnce) {
    for (const std::size_t bufferSize : {std::size_t{7}, std::size_t{1000}}) {
        TextStream stream(bufferSize);
        Document document(stream);
        Array outer = document.root().writeArray();
        Array innermost = outer.addElement().writeArray();
        for (int level = 0; level != 40; ++level) {
            innermost = innermost.addElement().writeObject().addMember("a").writeArray();
        }
        outer.addElement().writeNumber("1");
        EXPECT_THROW((void)innermost.addElement(), std::logic_error);
        document.close();
        std::string expected = "[[";
        for (int level = 0; level != 40; ++level) {
            expected += "{\"a\":[";
        }
        for (int level = 0; level != 40; ++level) {
            expected += "]}";
        }
        EXPECT_EQ(stream.text, expected + "],1]");
    }
}

TEST(JsonEncoder, TellsAContainerFromTheValueThatBecameIt) {
    TextStream stream;
    Document document(stream);
    Value root = document.root();
    Array array = root.writeArray();
    EXPECT_THROW(root.writeNull(), std::logic_error);
    EXPECT_THROW((void)root.writeObject(), std::logic_error);
    Value element = array.addElement();
    element.writeNull();
    EXPECT_THROW(element.writeNumber(corvane::utils::string::BasicStaticString<char, 20>("1")),
                 std::logic_error);
    document.close();
    EXPECT_EQ(stream.text, "[null]");
}

} // namespace
