#include <corvane/workbench/skill/SubElement.hpp>

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using corvane::workbench::bindings::Action;
using corvane::workbench::bindings::PropertyController;
using corvane::workbench::bindings::PropertyHandle;
using corvane::workbench::bindings::PropertyId;
using corvane::workbench::skill::EditableProperty;
using corvane::workbench::skill::SubElement;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

static_assert(std::is_base_of_v<PropertyController, SubElement>);
static_assert(std::is_abstract_v<SubElement>);
static_assert(sizeof(SubElement) == sizeof(PropertyController));

class Row : public SubElement {
public:
    std::wstring name = L"row";
    bool configuresItsName = false;

    std::wstring displayName() const override { return name; }
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const EditableProperty&)>) override {}

    static PropertyId id(std::array<std::uint64_t, 2> words) { return propertyId(words); }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        if (configuresItsName) {
            context.configure(displayNamePropertyId(), {.state = [this]() -> PropertyState {
                                  if (name.empty()) {
                                      return tl::unexpected(std::wstring(L"empty name"));
                                  }
                                  return {};
                              }});
        }
    }
};

class OtherRow final : public Row {};

class RowWithItsOwnProperty final : public Row {
public:
    PropertyId displayNamePropertyId() const override { return id({1, 2}); }
};

TEST(SubElement, TheDisplayNameHasOneFixedIdentifier) {
    const Row row;
    EXPECT_EQ(row.displayNamePropertyId(), Row::id({0xccb30326e8d36e40U, 0x1db60786d16165a8U}));
}

TEST(SubElement, DifferentClassesShareTheIdentifierOfTheDisplayName) {
    EXPECT_EQ(Row().displayNamePropertyId(), OtherRow().displayNamePropertyId());
}

TEST(SubElement, TheHandleOfTheDisplayNameBelongsToTheSubElement) {
    Row row;
    const PropertyHandle handle = row.displayNameProperty();
    EXPECT_TRUE(static_cast<bool>(handle));
    EXPECT_EQ(&handle.controller(), &row);
    EXPECT_EQ(handle.property(), row.displayNamePropertyId());
}

TEST(SubElement, AnOverriddenIdentifierIsUsedByHandleAndPublication) {
    RowWithItsOwnProperty row;
    EXPECT_EQ(row.displayNameProperty().property(), Row::id({1, 2}));
    int heard = 0;
    const auto subscription = row.subscribe(Row::id({1, 2}), {.value = [&] { ++heard; }});
    row.publishDisplayName();
    EXPECT_EQ(heard, 1);
}

TEST(SubElement, PublishingANameThatNobodyKnowsDoesNothing) {
    const Row row;
    row.publishDisplayName();
    EXPECT_EQ(row.propertyErrorCount(), 0U);
}

TEST(SubElement, PublishingTheNamePublishesValueAndState) {
    Row row;
    row.configuresItsName = true;
    EXPECT_TRUE(row.propertyState(row.displayNamePropertyId()).has_value());
    std::vector<std::string> heard;
    const auto subscription =
        row.subscribe(row.displayNamePropertyId(),
                      {.value =
                           [&](Action action, std::size_t index) {
                               heard.push_back("value " + std::to_string(static_cast<int>(action)) +
                                               " " + std::to_string(index));
                           },
                       .state = [&] { heard.push_back("state"); },
                       .visibility = {}});
    row.name.clear();
    EXPECT_THAT(heard, IsEmpty());
    row.publishDisplayName();
    EXPECT_THAT(heard, ElementsAre("value 0 0", "state"));
    EXPECT_EQ(row.propertyErrorCount(), 1U);
}

TEST(SubElement, ACopyStartsUnconfiguredAndAssignmentKeepsTheTargetsOwn) {
    Row source;
    source.configuresItsName = true;
    source.name.clear();
    EXPECT_EQ(source.propertyErrorCount(), 1U);
    int heard = 0;
    const auto subscription =
        source.subscribe(source.displayNamePropertyId(), {.value = [&] { ++heard; }});
    Row copy(source);
    copy.publishDisplayName();
    EXPECT_EQ(heard, 0);
    Row target;
    source = target;
    source.publishDisplayName();
    EXPECT_EQ(heard, 1);
}

TEST(EditableProperty, DefaultsToATextThatIsReadOnly) {
    const EditableProperty property;
    EXPECT_EQ(property.editor, EditableProperty::Editor::Text);
    EXPECT_FALSE(static_cast<bool>(property.property));
    EXPECT_FALSE(property.text);
    EXPECT_FALSE(property.setText);
    EXPECT_THAT(property.choices, IsEmpty());
    EXPECT_FALSE(property.forEachSubElement);
    EXPECT_FALSE(property.insertSubElement);
    EXPECT_FALSE(property.removeSubElement);
}

} // namespace
