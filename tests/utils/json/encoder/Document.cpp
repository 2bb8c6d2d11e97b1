#include <corvane/utils/json/encoder/Document.hpp>

#include "utils/json/encoder/TextStream.hpp"

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

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

} // namespace
