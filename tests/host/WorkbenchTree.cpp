#include "WorkbenchFixture.hpp"
#include <corvane/workbench/model/ElementReference.hpp>

namespace {

using corvane::tests::WorkbenchTest;
using testing::ElementsAre;
namespace model = corvane::workbench::model;

class WorkbenchTree : public WorkbenchTest {
protected:
    WorkbenchTree() {
        loadClean(R"({"children": [
  {"group": {"name": "plant", "UUID": "00000000-0000-4000-8000-000000000001", "children": [
    {"point": {"name": "[p.1]", "limit": 7}},
    {"leaf": {"name": "leaf"}}
  ]}},
  {"custom": {"name": "other"}}
]})");
    }
};

TEST_F(WorkbenchTree, NamesElementsByTheNamesOnTheWay) {
    EXPECT_THAT(keys(), ElementsAre("plant", "plant.[p.1]", "plant.leaf", "other"));
    for (const std::string& key : keys()) {
        ASSERT_NE(workbench.findElement(key), nullptr);
        EXPECT_EQ(workbench.findElement(key)->primaryKey(), key);
    }
    EXPECT_EQ(workbench.elementCount(), 4U);
}

TEST_F(WorkbenchTree, FindsTheRootUnderTheEmptyKey) {
    EXPECT_EQ(workbench.findElement(""), &workbench.root());
    EXPECT_EQ(workbench.root().primaryKey(), "");
    EXPECT_TRUE(workbench.root().isInvisibleRoot());
    EXPECT_EQ(workbench.root().category(), model::ElementCategory::RootElement);
    EXPECT_EQ(workbench.root().type(), L"root element");
    EXPECT_EQ(workbench.root().parentElement(), nullptr);
    EXPECT_THAT(workbench.root().attributes(), testing::IsEmpty());
}

TEST_F(WorkbenchTree, FindsNothingUnderOtherKeys) {
    for (const char* key : {"plan", "plant.", ".plant", "plant.p", "plant.[p", "plant.leaf.x", ".",
                            "plant..leaf", "Plant", "[plant]"}) {
        EXPECT_EQ(workbench.findElement(key), nullptr) << key;
    }
}

TEST_F(WorkbenchTree, FindsElementsByUuid) {
    const auto uuid = *corvane::utils::core::Uuid::parse("00000000-0000-4000-8000-000000000001");
    EXPECT_EQ(workbench.findElement(uuid), workbench.findElement("plant"));
    EXPECT_EQ(workbench.findElement(corvane::utils::core::Uuid()), nullptr);
}

TEST_F(WorkbenchTree, ElementsKnowTheirPlace) {
    const auto& plant = *workbench.findElement("plant");
    const auto& leaf = *workbench.findElement("plant.leaf");
    EXPECT_EQ(leaf.parentElement(), &plant);
    EXPECT_EQ(plant.parentElement(), &workbench.root());
    EXPECT_TRUE(leaf.isDescendentOf(plant));
    EXPECT_TRUE(leaf.isDescendentOf(workbench.root()));
    EXPECT_FALSE(plant.isDescendentOf(leaf));
    EXPECT_FALSE(plant.isDescendentOf(plant));
    EXPECT_EQ(leaf.findAncestor(plant.elementClass()), &plant);
    EXPECT_EQ(plant.findAncestor(plant.elementClass()), nullptr);
    EXPECT_EQ(leaf.depth(), 2U);
    EXPECT_FALSE(plant.isInvisibleRoot());
    const auto children = plant.childElements();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(&children[1], &leaf);
    EXPECT_EQ(plant.childElement("leaf"), &leaf);
    EXPECT_EQ(plant.childElement("twig"), nullptr);
}

TEST_F(WorkbenchTree, ElementsKnowWhereTheyStandInTheirFile) {
    EXPECT_EQ(workbench.findElement("plant")->line(), 2U);
    EXPECT_EQ(workbench.findElement("plant")->column(), 4U);
    EXPECT_EQ(workbench.findElement("plant.leaf")->line(), 4U);
    EXPECT_EQ(workbench.findElement("plant.leaf")->column(), 6U);
}

TEST_F(WorkbenchTree, ElementsHaveTheStandardAttributesAndThenThoseOfTheirSkill) {
    const auto& element = *workbench.findElement("plant.[p.1]");
    std::vector<std::string> names;
    element.forEachAttribute(
        [&](const model::Attribute& attribute) { names.emplace_back(attribute.name()); });
    EXPECT_THAT(names, ElementsAre("name", "UUID", "type", "category", "key", "value"));
    EXPECT_TRUE(element.event("alarm"));
    EXPECT_TRUE(element.task("reset"));
    EXPECT_FALSE(element.task("value"));
    EXPECT_EQ(element.type(), L"Test point");
}

TEST_F(WorkbenchTree, SkillElementsReachTheirElementThroughTheSupervisor) {
    const auto& element = *workbench.findElement("plant.[p.1]");
    EXPECT_EQ(element.skillElement()->primaryKey(), "plant.[p.1]");
    EXPECT_EQ(element.skillElement()->name(), "[p.1]");
    EXPECT_EQ(element.skillElement()->uuid(), element.uuid());
    EXPECT_EQ(&element.skillElement()->elementClass(), &element.elementClass());
    EXPECT_TRUE(element.isA(element.elementClass()));
}

TEST_F(WorkbenchTree, ManyChildrenAreFoundByName) {
    for (int number = 0; number < 100; ++number) {
        ASSERT_TRUE(workbench.add("plant", "leaf", "n" + std::to_string(number)));
    }
    const auto& plant = *workbench.findElement("plant");
    EXPECT_EQ(plant.findChild("n73")->name(), "n73");
    EXPECT_EQ(plant.findChild("n100"), nullptr);
    for (int number = 0; number < 98; ++number) {
        ASSERT_TRUE(workbench.remove("plant.n" + std::to_string(number)));
    }
    EXPECT_EQ(plant.findChild("n73"), nullptr);
    EXPECT_EQ(plant.findChild("n99")->name(), "n99");
    EXPECT_EQ(plant.findChild("leaf")->name(), "leaf");
}

TEST_F(WorkbenchTree, ErrorCountsClimbToTheRoot) {
    ASSERT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
    point("plant.[p.1]").setLimit(101);
    EXPECT_EQ(workbench.findElement("plant.[p.1]")->properties().propertyErrorCount(), 1U);
    EXPECT_EQ(workbench.findElement("plant.leaf")->properties().propertyErrorCount(), 0U);
    EXPECT_EQ(workbench.findElement("plant")->properties().propertyErrorCount(), 1U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    point("plant.[p.1]").setLimit(100);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(WorkbenchTree, InvalidPropertiesAreListedWithTheirPath) {
    point("plant.[p.1]").setLimit(101);
    point("plant.[p.1]").list.change([](auto& rows) { rows.resize(2); });
    point("plant.[p.1]").list.rows[1].target = workbench.elementReferenceData("plant.gone");
    point("plant.[p.1]").list.rows[1].target.updateValue();
    std::vector<std::string> found;
    const auto note = [&](const corvane::workbench::host::PropertyProblem& problem) {
        using corvane::utils::string::toUtf8;
        found.push_back(problem.element->primaryKey() + " | " + problem.path + " | " +
                        toUtf8(problem.displayPath) + " | " + toUtf8(problem.message));
    };
    workbench.forEachPropertyProblem(workbench.root(), note);
    EXPECT_THAT(found,
                ElementsAre("plant.[p.1] | limit | Limit | the limit is above 100",
                            "plant.[p.1] | rows.1.target | Rows.row.target | the element “plant” "
                            "does not have a child named “gone”"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 2U);
    found.clear();
    workbench.forEachPropertyProblem(*workbench.findElement("other"), note);
    EXPECT_THAT(found, testing::IsEmpty());
}

} // namespace
