#include "TestBench.hpp"
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>

namespace corvane::tests {
namespace {

class Vendored final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.json("object", "Object", object);
        form.json("guarded", "Guarded", guarded).refusesReservedNames();
        form.json("value", "Value", value);
    }

    json::Object object;
    json::Object guarded;
    json::Value value;
};

class JsonSetting : public ::testing::Test {
protected:
    TestBench<Vendored> bench;
};

TEST_F(JsonSetting, IsLoadedAndSavedAsItIs) {
    bench.loadSettings(R"("object": {"name": [1, 2.5, null]}, "guarded": {"a": {}}, "value": [])");
    EXPECT_EQ(bench.savedSettings(),
              R"({"object":{"name":[1,2.5,null]},"guarded":{"a":{}},"value":[]})");
    EXPECT_THAT(bench.setting("object"), HasText(R"({"name":[1,2.5,null]})"));
}

TEST_F(JsonSetting, IsNotSavedWhenItIsEmpty) {
    bench.loadSettings(R"("object": {}, "value": null)");
    EXPECT_EQ(bench.savedSettings(), "{}");
    EXPECT_THAT(bench.setting("object"), HasText(""));
    EXPECT_THAT(bench.setting("value"), HasText(""));
}

TEST_F(JsonSetting, IsRefusedWithItsPlaceWhenItIsNoObject) {
    EXPECT_THAT(bench.problemsOf(R"("object": [])"),
                ElementsAre("configuration.json:2:11: error: expected an object, found an array"));
}

TEST_F(JsonSetting, RefusesReservedNamesWhenAskedTo) {
    EXPECT_THAT(bench.problemsOf(R"("guarded": {"name": 1})"),
                ElementsAre("configuration.json:2:13: error: reserved member name \"name\""));
    EXPECT_THAT(bench.setting("object").trySet(R"({"name": 1})"), IsEmpty());
    EXPECT_NE(bench.setting("guarded").trySet(R"({"name": 1})"), "");
    EXPECT_THAT(bench.setting("guarded"), HasText(""));
}

TEST_F(JsonSetting, IsTypedAsALineOfJson) {
    bench.setting("object").set(R"({ "a" : 1 })");
    EXPECT_THAT(bench.setting("object"), HasText(R"({"a":1})"));
    EXPECT_NE(bench.setting("object").trySet("[]"), "");
    EXPECT_NE(bench.setting("value").trySet("[1,"), "");
    bench.setting("value").set("[1, true]");
    EXPECT_THAT(bench.setting("value"), HasText("[1,true]"));
    bench.setting("object").set("");
    bench.setting("value").set("");
    EXPECT_EQ(bench.savedSettings(), "{}");
}

} // namespace
} // namespace corvane::tests
