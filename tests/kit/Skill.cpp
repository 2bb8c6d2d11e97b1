#include <corvane/workbench/kit/Skill.hpp>

#include "TestBench.hpp"
#include "translationContext.hpp"
#include <corvane/workbench/host/Workbench.hpp>

#include <algorithm>
#include <stdexcept>

namespace corvane::tests {
namespace {

class Pump final : public kit::Element {
    void describe(kit::Form& /*form*/) override {}
};

class Registry final : public skill::Skill::Class::Registry {
public:
    void registerElementClass(const skill::Element::Class& elementClass) override {
        ids.emplace_back(elementClass.id());
    }

    std::vector<std::string> ids;
};

const kit::Skill::Description kDescription{
    .id = "Water",
    .displayName = "Water works",
    .version = "1.4.2",
};

TEST(DescribedSkill, IsWhatItsDescriptionSays) {
    const kit::Skill skill(kDescription, {});
    EXPECT_EQ(skill.id(), "Water");
    EXPECT_EQ(skill.displayName(), L"Water works");
    EXPECT_EQ(skill.version(), "1.4.2");
    EXPECT_NE(skill.createSkill(), nullptr);
}

TEST(DescribedSkill, EntersItselfIntoTheListOfAllSkills) {
    static const kit::Skill skill(kDescription, {});
    EXPECT_TRUE(std::ranges::any_of(skill::Skill::Class::allSkills(),
                                    [](const auto& entered) { return &entered.get() == &skill; }));
}

TEST(DescribedSkill, RegistersItsClassesInTheirOrderAsOftenAsItIsAsked) {
    kit::ClassDescription other{
        .id = "Other",
        .uuid = "5be1b7d4-90f4-4f1c-8d3a-7c1c8f0f4e21"_uuid,
        .displayName = "Other",
        .description = "For a test.",
    };
    const kit::ElementClass<Pump> otherClass(other);
    const kit::Skill skill(kDescription, {otherClass, testClass<Pump>()});
    Registry first;
    skill.registerElementClasses(first);
    EXPECT_THAT(first.ids, ElementsAre("Other", "Test"));
    Registry second;
    skill.registerElementClasses(second);
    EXPECT_THAT(second.ids, ElementsAre("Other", "Test"));
}

TEST(DescribedSkill, RegistersNothingWhenOneClassIsMistaken) {
    kit::ClassDescription mistaken{
        .id = "Mistaken",
        .uuid = {},
        .displayName = "Mistaken",
        .description = "For a test.",
    };
    const kit::ElementClass<Pump> mistakenClass(mistaken);
    const kit::Skill skill(kDescription, {testClass<Pump>(), mistakenClass});
    Registry registry;
    EXPECT_THROW(skill.registerElementClasses(registry), std::logic_error);
    EXPECT_THAT(registry.ids, IsEmpty());
}

TEST(DescribedSkill, IsAddedToAWorkbenchOnce) {
    const kit::Skill skill(kDescription, {testClass<Pump>()});
    host::Workbench workbench;
    EXPECT_TRUE(workbench.addSkill(skill));
    EXPECT_TRUE(workbench.addSkill(skill));
    EXPECT_EQ(workbench.skills().size(), 1U);
    EXPECT_TRUE(workbench.add("", "Test"));
}

TEST(DescribedSkill, TranslatesInItsContextOrElseUnderItsId) {
    kit::Skill::Description description = kDescription;
    const kit::Skill first(description, {});
    EXPECT_EQ(std::string_view(kit::internal::translationContext()), "Water");
    description.translationContext = "maker::water";
    const kit::Skill second(description, {});
    EXPECT_EQ(std::string_view(kit::internal::translationContext()), "maker::water");
}

} // namespace
} // namespace corvane::tests
