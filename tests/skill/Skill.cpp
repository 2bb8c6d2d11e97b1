#include <corvane/workbench/skill/Skill.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <deque>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using corvane::workbench::skill::Skill;
using ::testing::ElementsAre;

static_assert(std::is_abstract_v<Skill>);
static_assert(std::is_abstract_v<Skill::Class>);
static_assert(std::is_abstract_v<Skill::Class::Registry>);
static_assert(std::has_virtual_destructor_v<Skill>);
static_assert(std::has_virtual_destructor_v<Skill::Class>);
static_assert(std::has_virtual_destructor_v<Skill::Class::Registry>);
// No data of their own beside the virtual operations.
static_assert(sizeof(Skill) == sizeof(void*));
static_assert(sizeof(Skill::Class) == sizeof(void*));
static_assert(sizeof(Skill::Class::Registry) == sizeof(void*));
static_assert(!std::is_copy_constructible_v<Skill::Class>);

class EmptySkill final : public Skill {};

class NamedClass final : public Skill::Class {
public:
    explicit NamedClass(std::string_view id) : id_(id) {}

    std::string_view id() const override { return id_; }
    std::wstring displayName() const override { return L"Skill"; }
    std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry&) const override {}
    std::unique_ptr<Skill> createSkill() const override { return std::make_unique<EmptySkill>(); }

private:
    std::string_view id_;
};

// Constructed before main, like the class object of a skill library.
const NamedClass staticClass("static");

std::size_t count() {
    return static_cast<std::size_t>(
        std::distance(Skill::Class::allSkills().begin(), Skill::Class::allSkills().end()));
}

std::size_t countOf(const Skill::Class& skillClass) {
    std::size_t result = 0;
    for (const Skill::Class& known : Skill::Class::allSkills()) {
        result += &known == &skillClass ? 1U : 0U;
    }
    return result;
}

TEST(SkillClass, AStaticObjectIsInTheListBeforeMain) {
    EXPECT_EQ(countOf(staticClass), 1U);
}

TEST(SkillClass, TheNewestClassComesFirst) {
    // The list keeps referring to the objects, so they must not end with the test.
    static std::deque<NamedClass> kept;
    for (const std::string_view id : {"first", "second", "third"}) {
        kept.emplace_back(id);
    }
    std::vector<std::string_view> ids;
    for (const Skill::Class& skillClass : Skill::Class::allSkills()) {
        ids.push_back(skillClass.id());
        if (ids.size() == 3) {
            break;
        }
    }
    EXPECT_THAT(ids, ElementsAre("third", "second", "first"));
}

TEST(SkillClass, TheListIsAlwaysTheSameObject) {
    EXPECT_EQ(&Skill::Class::allSkills(), &Skill::Class::allSkills());
}

TEST(SkillClass, DestroyingAClassLeavesItsEntryInTheList) {
    // Constructed in memory that stays, so that the entry may still be compared by address.
    alignas(NamedClass) static std::byte memory[sizeof(NamedClass)];
    const std::size_t before = count();
    auto* skillClass = new (static_cast<void*>(memory)) NamedClass("gone");
    EXPECT_EQ(count(), before + 1);
    skillClass->~NamedClass();
    EXPECT_EQ(count(), before + 1);
    EXPECT_EQ(&Skill::Class::allSkills().front().get(), static_cast<Skill::Class*>(skillClass));
    // Leave an object behind whose operations other tests may call.
    new (static_cast<void*>(memory)) NamedClass("stays");
}

} // namespace
