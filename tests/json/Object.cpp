#include <corvane/workbench/json/Object.hpp>

#include "decoding.hpp"
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvane::workbench::json {
namespace {

namespace decoder = utils::json::decoder;
using Format = utils::json::encoder::Document::Format;
using testing::ElementsAre;

static_assert(std::is_nothrow_move_constructible_v<Object>);
static_assert(std::is_nothrow_move_assignable_v<Object>);
static_assert(std::is_empty_v<Object::CorvaneElementFilter>);
static_assert(sizeof(DecodingOptions) == 1);
static_assert(!DecodingOptions().allowDuplicateMembers);

constexpr DecodingOptions kTolerant{.allowDuplicateMembers = true};

std::string compact(const Object& object) {
    return object.toString(Format::Compact);
}

/// {"m0":0,"m1":1,…} with `count` members, then whatever `behind` says.
std::string textOfMembers(int count, std::string_view behind) {
    std::string text = "{";
    for (int number = 0; number < count; ++number) {
        const std::string digits = std::to_string(number);
        text += (number == 0 ? "\"m" : ",\"m") + digits + "\":" + digits;
    }
    return text.append(behind).append("}");
}

TEST(JsonObject, IsEmptyByDefault) {
    EXPECT_TRUE(Object().empty());
    EXPECT_EQ(Object().size(), 0U);
    EXPECT_EQ(Object(), Object::fromString("{}"));
}

TEST(JsonObject, KeepsTheOrderOfTheText) {
    const Object object = Object::fromString(R"({"b":1,"a":2,"c":3})").value();
    std::vector<std::string> names;
    for (const auto& [name, value] : object) {
        names.push_back(name);
    }
    EXPECT_THAT(names, ElementsAre("b", "a", "c"));
    EXPECT_EQ(compact(object), R"({"b":1,"a":2,"c":3})");
}

TEST(JsonObject, IsUnequalToOneWithTheSameMembersInAnotherOrder) {
    EXPECT_NE(Object::fromString(R"({"a":1,"b":2})"), Object::fromString(R"({"b":2,"a":1})"));
    EXPECT_EQ(Object::fromString(R"({"a":1,"b":2})"),
              Object::fromString(R"({ "a" : 1, "b" : 2 })"));
}

TEST(JsonObject, IsUnequalToOneWithOtherNamesValuesOrCount) {
    const Object object = Object::fromString(R"({"a":1,"b":2})").value();
    EXPECT_NE(object, Object::fromString(R"({"a":1,"B":2})"));
    EXPECT_NE(object, Object::fromString(R"({"a":1,"b":3})"));
    EXPECT_NE(object, Object::fromString(R"({"a":1})"));
    EXPECT_NE(object, Object::fromString(R"({"a":1,"b":2,"c":3})"));
}

TEST(JsonObject, RefusesANameThatComesTwice) {
    const auto result = Object::fromString(R"({"a":1,"a":2})");
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error(), L"duplicate member \"a\" in JSON object");
}

TEST(JsonObject, LocatesADuplicateAtItsSecondName) {
    test::withRoot("{\"a\":1,\n  \"b\":2,\n  \"a\":3}", [](decoder::Value& root) {
        EXPECT_EQ(test::locatedErrorOf<std::runtime_error>([&] { Object().decode(root); }),
                  (test::LocatedError{"duplicate member \"a\" in JSON object", 3, 3}));
    });
}

TEST(JsonObject, WithDuplicatesAllowedTheLastValueWinsAtTheFirstPosition) {
    EXPECT_EQ(compact(Object::fromString(R"({"a":1,"a":2})", kTolerant).value()), R"({"a":2})");
    EXPECT_EQ(
        compact(Object::fromString(R"({"a":1,"b":{"c":0},"a":[2],"a":3})", kTolerant).value()),
        R"({"a":3,"b":{"c":0}})");
}

TEST(JsonObject, RefusesNestedDuplicatesWhateverTheOptions) {
    for (const DecodingOptions options : {DecodingOptions(), kTolerant}) {
        EXPECT_EQ(Object::fromString(R"({"x":{"b":1,"b":2}})", options).error(),
                  L"duplicate member \"b\" in JSON object");
        EXPECT_EQ(Object::fromString(R"({"x":[[{"b":1,"b":2}]]})", options).error(),
                  L"duplicate member \"b\" in JSON object");
        EXPECT_EQ(Object::fromString(R"({"x":1,"x":{"b":1,"b":2}})", kTolerant).error(),
                  L"duplicate member \"b\" in JSON object");
    }
}

TEST(JsonObject, FindsADuplicateOfAnyMemberWhateverTheSize) {
    for (const int count : {1, 2, 15, 16, 17, 18, 100, 1000}) {
        EXPECT_EQ(Object::fromString(textOfMembers(count, "")).value().size(),
                  static_cast<std::size_t>(count));
        for (const int duplicate : {0, count / 2, count - 1}) {
            const std::string name = "m" + std::to_string(duplicate);
            const std::string text = textOfMembers(count, ",\"" + name + "\":true");
            EXPECT_EQ(Object::fromString(text).error(), L"duplicate member \"" +
                                                            std::wstring(name.begin(), name.end()) +
                                                            L"\" in JSON object")
                << count;
            const Object object = Object::fromString(text, kTolerant).value();
            EXPECT_EQ(object.size(), static_cast<std::size_t>(count));
            EXPECT_EQ(object.begin()[duplicate].first, name);
            EXPECT_EQ(object.begin()[duplicate].second, Value(true));
        }
    }
}

TEST(JsonObject, DistinguishesNamesOfAnyBytes) {
    const Object object =
        Object::fromString("{\"\":1,\"a\":2,\"a\\u0000\":3,\"\\u00e4\":4}").value();
    EXPECT_EQ(*object.find(""), Value(1));
    EXPECT_EQ(*object.find(std::string_view("a\0", 2)), Value(3));
    EXPECT_EQ(*object.find("\xc3\xa4"), Value(4));
    EXPECT_EQ(Object::fromString("{\"a\":1,\"\\u0061\":2}").error(),
              L"duplicate member \"a\" in JSON object");
}

TEST(JsonObject, IsMadeFromAnObjectTextOnly) {
    EXPECT_EQ(Object::fromString("[]").error(), L"expected an object, found an array");
    EXPECT_EQ(Object::fromString("5").error(), L"expected an object, found a number");
    EXPECT_EQ(Object::fromString("{} {}").error(),
              L"Error on line 1: unexpected text after the end of the value");
}

TEST(JsonObject, AppendsFindsAndErasesMembers) {
    Object object;
    object.reserve(3);
    EXPECT_EQ(object.append("a", 1), Value(1));
    object.append("b", "two");
    object.append("a", 3);
    EXPECT_EQ(object.size(), 3U);
    EXPECT_EQ(*object.find("a"), Value(1));
    EXPECT_EQ(object.find("A"), nullptr);
    *object.find("b") = true;
    EXPECT_EQ(compact(object), R"({"a":1,"b":true,"a":3})");

    EXPECT_TRUE(object.erase("a"));
    EXPECT_EQ(compact(object), R"({"b":true,"a":3})");
    EXPECT_FALSE(object.erase("c"));
    const auto behind = object.erase(object.begin());
    EXPECT_EQ(behind->first, "a");
    object.clear();
    EXPECT_TRUE(object.empty());
}

TEST(JsonObject, GivesItsMembersForChange) {
    Object object = Object::fromString(R"({"a":1,"b":2})").value();
    for (auto& [name, value] : object) {
        value = name;
    }
    EXPECT_EQ(compact(object), R"({"a":"a","b":"b"})");
    EXPECT_EQ(*std::as_const(object).find("b"), Value("b"));
}

TEST(JsonObject, MayBeAssignedAnObjectNestedInItself) {
    Object object = Object::fromString(R"({"a":{"b":"some longer text"}})").value();
    Object copied = object;
    copied = std::as_const(copied).find("a")->get<Object>();
    EXPECT_EQ(compact(copied), R"({"b":"some longer text"})");
    object = std::move(object.find("a")->get<Object>());
    EXPECT_EQ(compact(object), R"({"b":"some longer text"})");
}

TEST(JsonObject, AMovedFromObjectIsEmpty) {
    Object object = Object::fromString(R"({"a":1})").value();
    const Object moved = std::move(object);
    EXPECT_TRUE(object.empty()); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(compact(moved), R"({"a":1})");
}

TEST(JsonObject, DecodingReplacesTheMembers) {
    Object object = Object::fromString(R"({"old":1})").value();
    test::withRoot(R"({"new":2})", [&](decoder::Value& root) { object.decode(root); });
    EXPECT_EQ(compact(object), R"({"new":2})");
    test::withRoot(R"({"newer":3})", [&](decoder::Value& root) {
        decoder::Object source = root.asObject();
        object.decode(source);
    });
    EXPECT_EQ(compact(object), R"({"newer":3})");
}

TEST(JsonObject, AFailedDecodingLeavesTheMembersAlone) {
    Object object = Object::fromString(R"({"old":1})").value();
    test::withRoot(R"({"a":1,"a":2})", [&](decoder::Value& root) {
        EXPECT_THROW(object.decode(root), std::runtime_error);
    });
    EXPECT_EQ(compact(object), R"({"old":1})");
}

TEST(JsonObject, TheElementFilterRefusesTheReservedNames) {
    EXPECT_EQ(Object::fromString(R"({"name":1})", Object::kCorvaneElementFilter).error(),
              L"reserved member name \"name\"");
    EXPECT_EQ(Object::fromString(R"({"UUID":1})", Object::kCorvaneElementFilter).error(),
              L"reserved member name \"UUID\"");
    EXPECT_EQ(Object::fromString(R"({"ACL":1})", Object::kCorvaneElementFilter).error(),
              L"reserved member name \"ACL\"");
    EXPECT_EQ(Object::fromString(R"({"children":[]})", Object::kCorvaneElementFilter).error(),
              L"reserved member name \"children\"");
}

TEST(JsonObject, TheElementFilterRefusesNoOtherName) {
    constexpr std::string_view text =
        R"({"Children":1,"Name":2,"uuid":3,"acl":4,"names":5,"nested":{"name":6,"children":[]}})";
    EXPECT_EQ(compact(Object::fromString(text, Object::kCorvaneElementFilter).value()), text);
}

TEST(JsonObject, TheElementFilterLocatesAReservedNameAtTheName) {
    test::withRoot("{\"speed\":1,\n \"children\":2}", [](decoder::Value& root) {
        const auto decode = [&] { Object().decode(root, Object::kCorvaneElementFilter); };
        EXPECT_EQ(test::locatedErrorOf<std::runtime_error>(decode),
                  (test::LocatedError{"reserved member name \"children\"", 2, 2}));
    });
}

TEST(JsonObject, AReservedNameFromNoTextIsAPlainLogicError) {
    test::withRoot("1", [](decoder::Value& root) {
        try {
            Object::kCorvaneElementFilter(decoder::Name("ACL"), root);
            ADD_FAILURE() << "no exception";
        } catch (const decoder::Exception&) {
            ADD_FAILURE() << "located without a location";
        } catch (const std::logic_error& error) {
            EXPECT_STREQ(error.what(), "reserved member name \"ACL\"");
        }
    });
}

TEST(JsonObject, AFilterSeesTheOutermostMembersAndMayConsumeThem) {
    std::vector<std::string> seen;
    const auto filter = [&](const decoder::Name& name, decoder::Value& value) {
        seen.emplace_back(name.text());
        return value.isNumber();
    };
    Object object;
    test::withRoot(R"({"a":1,"b":{"c":2},"d":3,"e":"x"})", [&](decoder::Value& root) {
        decoder::Object source = root.asObject();
        object.decode(source, filter);
    });
    EXPECT_THAT(seen, ElementsAre("a", "b", "d", "e"));
    EXPECT_EQ(compact(object), R"({"b":{"c":2},"e":"x"})");
}

TEST(JsonObject, AFilterMayHaveAStateOfItsOwn) {
    auto consumesEverySecond = [count = 0](const decoder::Name&, decoder::Value&) mutable {
        return ++count % 2 == 0;
    };
    auto filter = consumesEverySecond;
    EXPECT_EQ(
        compact(Object::fromString(R"({"a":1,"b":2,"c":3,"d":4})", std::move(consumesEverySecond))
                    .value()),
        R"({"a":1,"c":3})");
    Object object;
    test::withRoot(R"({"a":1})", [&](decoder::Value& root) { object.decode(root, filter); });
    EXPECT_EQ(compact(object), R"({"a":1})");
    test::withRoot(R"({"a":1,"b":2})", [&](decoder::Value& root) {
        decoder::Object source = root.asObject();
        object.decode(source, filter); // goes on counting
    });
    EXPECT_EQ(compact(object), R"({"b":2})");
}

TEST(JsonObject, AFilterIsNotCalledAfterADecodingThatFailed) {
    test::withRoot(R"({"a":1,"bad":{"b":1,"b":2},"c":3,"d":4})", [](decoder::Value& root) {
        decoder::Object source = root.asObject();
        std::string walked;
        {
            int calls = 0;
            const auto filter = [&](const decoder::Name&, decoder::Value&) {
                ++calls;
                return calls > 2;
            };
            EXPECT_THROW(Object().decode(source, filter), std::runtime_error);
            EXPECT_EQ(calls, 2);
        }
        for (const decoder::Member& member : source) {
            walked.append(member.name.text()).append(" ");
        }
        EXPECT_EQ(walked, "bad c d ");
    });
}

TEST(JsonObject, AFilterIsNotCalledAfterItHasThrown) {
    test::withRoot(R"({"a":1,"name":2,"children":3})", [](decoder::Value& root) {
        decoder::Object source = root.asObject();
        EXPECT_THROW(Object().decode(source, Object::kCorvaneElementFilter), std::runtime_error);
        std::string walked;
        for (const decoder::Member& member : source) {
            walked.append(member.name.text()).append(" ");
        }
        EXPECT_EQ(walked, "name children ");
    });
}

TEST(JsonObject, AFilterOfTheCallerStaysWhenAnotherGoes) {
    test::withRoot(R"({"a":1,"name":2,"b":3})", [](decoder::Value& root) {
        decoder::Object source = root.asObject();
        std::string seen;
        const auto watch = [&](const decoder::Name& name, decoder::Value&) {
            seen.append(name.text()).append(" ");
            return false;
        };
        source.addFilter(watch);
        EXPECT_THROW(Object().decode(source, Object::kCorvaneElementFilter), std::runtime_error);
        for (const decoder::Member& member : source) {
            static_cast<void>(member);
        }
        EXPECT_EQ(seen, "a name b ");
    });
}

TEST(JsonObject, ConsumedMembersAreNoDuplicates) {
    const auto filter = [](const decoder::Name& name, decoder::Value&) {
        return name.text() == "a";
    };
    EXPECT_EQ(compact(Object::fromString(R"({"a":1,"b":2,"a":3})", filter).value()), R"({"b":2})");
}

TEST(JsonObject, AFilterGoesTogetherWithOptions) {
    EXPECT_EQ(
        compact(Object::fromString(R"({"a":1,"a":2})", Object::kCorvaneElementFilter, kTolerant)
                    .value()),
        R"({"a":2})");
}

} // namespace
} // namespace corvane::workbench::json
