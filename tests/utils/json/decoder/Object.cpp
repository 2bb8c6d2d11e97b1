#include <corvane/utils/json/decoder/Object.hpp>

#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>

#include <ranges>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

using corvane::tests::decoderError;
using corvane::tests::described;
using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Location;
using corvane::utils::json::decoder::Name;
using corvane::utils::json::decoder::Object;
using corvane::utils::json::decoder::Value;

static_assert(std::ranges::input_range<Object>);
static_assert(!std::is_copy_constructible_v<Object>);

/// The members that a walk delivers, as "name=value name=value ".
std::string walked(Object& object) {
    std::string text;
    for (const auto [name, value] : object) {
        text.append(name.text()).append("=").append(described(value)).append(" ");
    }
    return text;
}

TEST(JsonDecoderObject, DeliversItsMembersInTheOrderOfTheText) {
    ParsedText text(R"({"b":1,"a":[1,{"x":2}],"":null,"b":"again"})");
    auto object = text.root().asObject();
    EXPECT_EQ(walked(object), "b=i1 a=[i1,{x:i2}] =null b=\"again\" ");
}

TEST(JsonDecoderObject, DeliversNothingWhenItIsEmpty) {
    ParsedText text("{}");
    auto object = text.root().asObject();
    EXPECT_EQ(walked(object), "");
    EXPECT_EQ(object.memberCount(), 0U);
}

TEST(JsonDecoderObject, SkipsAValueThatIsLeftUnread) {
    ParsedText text(R"({"a":{"deep":[[[1]]]},"b":[1,2,3],"c":"x"})");
    auto object = text.root().asObject();
    std::string names;
    for (const auto [name, value] : object) {
        names += name.text();
    }
    EXPECT_EQ(names, "abc");
}

TEST(JsonDecoderObject, SkipsTheRestOfAValueThatIsReadInPart) {
    ParsedText text(R"({"a":[1,2,3],"b":4})");
    auto object = text.root().asObject();
    std::string seen;
    for (const auto [name, value] : object) {
        seen += name.text();
        if (value.isArray()) {
            auto array = value.asArray();
            for (const Value& element : array) {
                seen += described(element);
                break;
            }
        }
    }
    EXPECT_EQ(seen, "ai1b");
}

TEST(JsonDecoderObject, ChecksAValueThatIsLeftUnread) {
    EXPECT_EQ(decoderError([] { const ParsedText text(R"({"a":[1,2,}],"b":4})"); }),
              "1:11 JSON syntax error (line 1): unexpected character '}'");
}

TEST(JsonDecoderObject, KnowsItsMemberCountAheadAndDuringTheWalk) {
    ParsedText text(R"({"a":{"x":1,"y":2},"b":[1,2,3],"a":null})");
    auto object = text.root().asObject();
    EXPECT_EQ(object.memberCount(), 3U);
    for (const auto [name, value] : object) {
        EXPECT_EQ(object.memberCount(), 3U);
        if (value.isObject()) {
            EXPECT_EQ(value.asObject().memberCount(), 2U);
        }
    }
    EXPECT_EQ(object.memberCount(), 3U);
}

TEST(JsonDecoderObject, GoesOnWhereItsWalkWasLeft) {
    ParsedText text(R"({"a":1,"b":2,"c":3})");
    auto object = text.root().asObject();
    auto member = object.begin();
    EXPECT_EQ((*member).name.text(), "a");
    ++member;
    EXPECT_EQ(walked(object), "b=i2 c=i3 ");
    EXPECT_EQ(walked(object), "");
}

TEST(JsonDecoderObject, EachConversionBeginsAWalkOfItsOwn) {
    ParsedText text(R"({"a":1})");
    auto first = text.root().asObject();
    EXPECT_EQ(walked(first), "a=i1 ");
    auto second = text.root().asObject();
    EXPECT_EQ(walked(second), "a=i1 ");
}

TEST(JsonDecoderObject, AFilterThatReturnsTrueHasConsumedTheMember) {
    ParsedText text(R"({"name":"n","a":1,"name":"m","b":2})");
    auto object = text.root().asObject();
    std::string names;
    const auto filter = [&names](const Name& name, Value& value) {
        if (name.text() != "name") {
            return false;
        }
        names += value.asString().view();
        return true;
    };
    object.addFilter(filter);
    EXPECT_EQ(walked(object), "a=i1 b=i2 ");
    EXPECT_EQ(names, "nm");
    EXPECT_EQ(object.memberCount(), 4U);
}

TEST(JsonDecoderObject, AsksFiltersInTheOrderInWhichTheyWereAddedUntilOneConsumes) {
    ParsedText text(R"({"a":1,"b":2})");
    auto object = text.root().asObject();
    std::string calls;
    const auto first = [&calls](const Name& name, Value&) {
        calls.append("first ").append(name.text()).append(", ");
        return name.text() == "a";
    };
    const auto second = [&calls](const Name& name, Value&) {
        calls.append("second ").append(name.text()).append(", ");
        return false;
    };
    object.addFilter(first);
    object.addFilter(second);
    for (const auto [name, value] : object) {
        calls.append("delivered ").append(name.text());
    }
    EXPECT_EQ(calls, "first a, first b, second b, delivered b");
}

TEST(JsonDecoderObject, FiltersMayConsumeEverything) {
    ParsedText text(R"({"a":1,"b":2})");
    auto object = text.root().asObject();
    int calls = 0;
    const auto filter = [&calls](const Name&, Value&) {
        ++calls;
        return true;
    };
    object.addFilter(filter);
    EXPECT_EQ(walked(object), "");
    EXPECT_EQ(calls, 2);
}

TEST(JsonDecoderObject, AFilterAddedDuringTheWalkSeesTheMembersStillToCome) {
    ParsedText text(R"({"a":1,"b":2,"c":3})");
    auto object = text.root().asObject();
    std::string seen;
    const auto filter = [&seen](const Name& name, Value&) {
        seen += name.text();
        return false;
    };
    for (const auto [name, value] : object) {
        if (name.text() == "a") {
            object.addFilter(filter);
        }
    }
    EXPECT_EQ(seen, "bc");
}

TEST(JsonDecoderObject, AFilterAddedByAFilterSeesTheNextMember) {
    ParsedText text(R"({"a":1,"b":2,"c":3})");
    auto object = text.root().asObject();
    std::string seen;
    const auto second = [&seen](const Name& name, Value&) {
        seen += name.text();
        return false;
    };
    const auto first = [&](const Name& name, Value&) {
        if (name.text() == "a") {
            for (int count = 0; count != 100; ++count) {
                object.addFilter(second);
            }
        }
        return name.text() == "c";
    };
    object.addFilter(first);
    EXPECT_EQ(walked(object), "a=i1 b=i2 ");
    EXPECT_EQ(seen, std::string(100, 'b'));
}

TEST(JsonDecoderObject, AFilterInAScopeIsCalledWhileTheScopeLives) {
    ParsedText text(R"({"a":1,"b":2,"c":3})");
    auto object = text.root().asObject();
    std::string seen;
    const auto outer = [&seen](const Name& name, Value&) {
        seen.append("outer ").append(name.text()).append(", ");
        return false;
    };
    const auto inner = [&seen](const Name& name, Value&) {
        seen.append("inner ").append(name.text()).append(", ");
        return false;
    };
    const Object::FilterScope outerScope(object, outer);
    {
        const Object::FilterScope innerScope(object, inner);
        (void)object.begin();
    }
    ++object.begin();
    EXPECT_EQ(seen, "outer a, inner a, outer b, ");
}

TEST(JsonDecoderObject, AFilterMayReadAValueInPart) {
    ParsedText text(R"({"children":[{"x":1},{"y":2}],"a":1})");
    auto object = text.root().asObject();
    const auto filter = [](const Name& name, Value& value) {
        if (name.text() != "children") {
            return false;
        }
        auto array = value.asArray();
        return described(*array.begin()) == "{x:i1}";
    };
    object.addFilter(filter);
    EXPECT_EQ(walked(object), "a=i1 ");
}

TEST(JsonDecoderObject, LetsOutWhatAFilterThrows) {
    ParsedText text(R"({"a":1})");
    auto object = text.root().asObject();
    const auto filter = [](const Name&, Value&) -> bool { throw std::logic_error("no"); };
    object.addFilter(filter);
    EXPECT_THROW((void)object.begin(), std::logic_error);
}

TEST(JsonDecoderObject, KnowsItsPlace) {
    ParsedText text("\n\n  {\"a\":\n {}}");
    auto object = text.root().asObject();
    EXPECT_EQ(object.location(), Location(3, 3));
    const auto member = *object.begin();
    EXPECT_EQ(member.name.location(), Location(3, 4));
    EXPECT_EQ(member.value.location(), Location(4, 2));
    EXPECT_EQ(object.location(), Location(3, 3));
}

} // namespace
