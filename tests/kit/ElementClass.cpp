#include <corvane/workbench/kit/ElementClass.hpp>

#include "TestBench.hpp"
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

#include <memory>
#include <stdexcept>
#include <typeinfo>

namespace corvane::tests {
namespace {

class Pump final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.number("power", "Power", power).initially(3); }

    double power = 1;
};

class Valve final : public kit::Element {
public:
    void describe(kit::Form& /*form*/) override {}
};

const kit::ClassDescription kPumpDescription{
    .id = "Pump",
    .uuid = "5be1b7d4-90f4-4f1c-8d3a-7c1c8f0f4e11"_uuid,
    .displayName = "Pump for water",
    .description = "Pumps.",
    .category = model::ElementCategory::Device,
    .children = model::ElementCategory::SubDevice,
};

TEST(DescribedClass, IsWhatItsDescriptionSays) {
    const kit::ElementClass<Pump> pump(kPumpDescription);
    EXPECT_EQ(pump.id(), "Pump");
    EXPECT_EQ(pump.uuid().toString(), "5be1b7d4-90f4-4f1c-8d3a-7c1c8f0f4e11");
    EXPECT_EQ(pump.displayName(), L"Pump for water");
    EXPECT_EQ(pump.description(), L"Pumps.");
    EXPECT_EQ(pump.category(), model::ElementCategory::Device);
}

TEST(DescribedClass, ProposesItsDisplayNameForNewElementsUnlessThereIsAnother) {
    kit::ClassDescription description = kPumpDescription;
    EXPECT_EQ(kit::ElementClass<Pump>(description).defaultName(), "Pump for water");
    description.defaultName = "P";
    EXPECT_EQ(kit::ElementClass<Pump>(description).defaultName(), "P");
}

TEST(DescribedClass, AllowsChildrenOfItsCategories) {
    const kit::ElementClass<Pump> pump(kPumpDescription);
    kit::ClassDescription description = kPumpDescription;
    description.category = model::ElementCategory::SubDevice;
    const kit::ElementClass<Valve> valve(description);
    EXPECT_TRUE(pump.allowChildElement(valve));
    EXPECT_FALSE(pump.allowChildElement(pump));
}

TEST(DescribedClass, MakesAndCopiesItsElements) {
    const kit::ElementClass<Pump> pump(kPumpDescription);
    const std::unique_ptr<skill::Element> made = pump.factory().createElement();
    dynamic_cast<Pump&>(*made).power = 7;
    const std::unique_ptr<skill::Element> copy = pump.factory().copyElement(*made);
    EXPECT_EQ(dynamic_cast<Pump&>(*copy).power, 7);
    EXPECT_THROW(static_cast<void>(pump.factory().copyElement(Valve())), std::bad_cast);
}

class MistakenClass : public ::testing::Test {
protected:
    [[nodiscard]] std::string mistake() const {
        try {
            kit::ElementClass<Pump>(description).check();
        } catch (const std::logic_error& error) {
            return error.what();
        }
        return "none";
    }

    kit::ClassDescription description = kPumpDescription;
};

TEST_F(MistakenClass, IsNoneWhenAllIsThere) {
    EXPECT_EQ(mistake(), "none");
}

TEST_F(MistakenClass, HasNoId) {
    description.id = "";
    EXPECT_EQ(mistake(), "the element class \"\" needs an id");
}

TEST_F(MistakenClass, HasNoUuid) {
    description.uuid = {};
    EXPECT_EQ(mistake(), "the element class \"Pump\" needs a UUID that is not nil");
}

TEST_F(MistakenClass, HasNoDisplayName) {
    description.displayName = "";
    EXPECT_EQ(mistake(), "the element class \"Pump\" needs a display name");
}

TEST_F(MistakenClass, HasNoDescription) {
    description.description = "";
    EXPECT_EQ(mistake(), "the element class \"Pump\" needs a description");
}

} // namespace
} // namespace corvane::tests
