#include "TestBench.hpp"
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace corvane::tests {
namespace {

class Linked final : public kit::Element {
public:
    void describe(kit::Form& form) override {
        form.reference("element", "Element", element);
        form.reference("attribute", "Attribute", attribute).optional();
        form.reference("event", "Event", event).optional();
        form.reference("task", "Task", task).optional().savedWhenNotInitial();
        form.reference("required", "Required", demanded).required("Choose one.");
        form.reference("own", "Own", own).optional().to(testClass<Linked>());
        form.reference("timer", "Timer", timer)
            .optional()
            .to(model::ElementCategory::Timer, "“{}” is no timer.");
        form.reference("device", "Device", device).optional().to(model::ElementCategory::Device);
        form.attribute("level", model::Attribute::Access::ReadOnly, {2, 8});
        form.event("full");
        form.task("drain");
    }

    model::ElementReference element;
    model::AttributeReference attribute;
    process::EventReference event;
    process::TaskReference task;
    model::ElementReference demanded;
    model::ElementReference own;
    model::AttributeReference timer;
    model::ElementReference device;
};

class Plain final : public kit::Element {
    void describe(kit::Form& /*form*/) override {}
};

const kit::ElementClass<Plain> kPlain({
    .id = "Plain",
    .uuid = "5be1b7d4-90f4-4f1c-8d3a-7c1c8f0f4e02"_uuid,
    .displayName = "Plain",
    .description = "For a test.",
    .category = model::ElementCategory::DataPoint,
});

class ReferenceSetting : public ::testing::Test {
protected:
    ReferenceSetting() {
        bench.add("Test", "E");
        bench.add("Plain", "P");
    }
    [[nodiscard]] testing::Setting setting(std::string_view path) {
        return bench.element("E").at(path);
    }

    Bench bench{testClass<Linked>(), kPlain};
};

TEST_F(ReferenceSetting, IsLoadedAndSavedAsItsKey) {
    bench.load(R"({"children": [{"Test": {"name": "E", "element": "F", "attribute": "F.level",
        "event": "F.full", "task": "F.drain", "required": "F"}}, {"Test": {"name": "F"}}]})");
    EXPECT_EQ(bench.element("E").saved(),
              R"({"element":"F","attribute":"F.level","event":"F.full","task":"F.drain",)"
              R"("required":"F","own":"","timer":"","device":""})");
    EXPECT_THAT(setting("element"), HasText("F"));
    EXPECT_THAT(setting("attribute"), HasText("F.level"));
    EXPECT_THAT(setting("event"), HasText("F.full"));
    EXPECT_THAT(setting("task"), HasText("F.drain"));
    EXPECT_THAT(bench.element("E"), HasErrors(0));
}

TEST_F(ReferenceSetting, IsRefusedWithItsPlaceWhenItIsNoText) {
    bench.tryLoad("{\"children\": [{\"Test\": {\"name\": \"E\",\n\"element\": 5}}]}");
    EXPECT_THAT(bench.problems(),
                ElementsAre("configuration.json:2:12: error: expected a string, found a number"));
}

TEST_F(ReferenceSetting, IsAnErrorWhenItDoesNotResolve) {
    setting("element").set("Q");
    EXPECT_THAT(setting("element"), HasError("the element “Q” does not exist"));
    setting("task").set("P.drain");
    EXPECT_THAT(setting("task"), HasError("the element “P” does not have a task named “drain”"));
    setting("event").set("P.full");
    EXPECT_THAT(setting("event"), HasError("the element “P” does not have an event named “full”"));
    setting("attribute").set("P.level");
    EXPECT_THAT(setting("attribute"),
                HasError("the element “P” does not have an attribute named “level”"));
}

TEST_F(ReferenceSetting, IsAnErrorWhenItIsEmptyUnlessItIsOptional) {
    EXPECT_THAT(setting("element"), HasError("empty element key"));
    EXPECT_THAT(setting("attribute"), IsOk());
}

TEST_F(ReferenceSetting, SaysInTheSkillsWordsThatItIsRequired) {
    EXPECT_THAT(setting("required"), HasError("Choose one."));
    setting("required").set("Q");
    EXPECT_THAT(setting("required"), HasError("the element “Q” does not exist"));
}

TEST_F(ReferenceSetting, LeadsToAnElementOfAClass) {
    setting("own").set("P");
    EXPECT_THAT(setting("own"), HasError("The element “P” does not fit here."));
    setting("own").set("E");
    EXPECT_THAT(setting("own"), IsOk());
}

TEST_F(ReferenceSetting, LeadsToAMemberOfAnElementOfACategory) {
    setting("timer").set("E.level");
    EXPECT_THAT(setting("timer"), HasError("“E” is no timer."));
    setting("device").set("P");
    EXPECT_THAT(setting("device"), HasError("The element “P” does not fit here."));
    setting("device").set("E");
    EXPECT_THAT(setting("device"), IsOk());
}

TEST_F(ReferenceSetting, IsSetByTheWorkbenchAlone) {
    const skill::EditableProperty property = setting("element").property();
    EXPECT_EQ(property.editor, skill::EditableProperty::Editor::Reference);
    EXPECT_FALSE(property.setText);
    setting("element").set("P");
    EXPECT_THAT(setting("element"), Announced(R"(
        value       E.element: P
        state       E.element: ok)"));
}

TEST_F(ReferenceSetting, FollowsTheElementThatItNames) {
    setting("element").set("P");
    bench.element("P").rename("Q");
    EXPECT_THAT(setting("element"), HasText("Q"));
    bench.element("Q").remove();
    EXPECT_THAT(setting("element"), HasError("the element “Q” does not exist"));
}

} // namespace
} // namespace corvane::tests
