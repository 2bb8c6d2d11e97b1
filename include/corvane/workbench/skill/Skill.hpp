#pragma once

#include <corvane/utils/memory/SafeGlobal.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <forward_list>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace corvane::workbench::skill {

/// The running instance of a skill; the workbench makes it with `Class::createSkill` and
/// destroys it before the skill's library is unloaded.
class CORVANE_WORKBENCH_EXPORT Skill {
public:
    class Class;

    Skill();
    Skill(const Skill&) = delete;
    Skill& operator=(const Skill&) = delete;
    virtual ~Skill() = 0;
};

/// Describes a skill to the workbench. A skill library holds one static object derived from
/// Skill::Class; constructing that object is all the registration there is. A class object lives as
/// long as its library stays loaded. Creating the list is thread-safe, inserting is not: skill
/// libraries are loaded one at a time. The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT Skill::Class {
public:
    class Registry;

    /// Enters the object at the front of `allSkills()`.
    Class();
    // The list refers to the object by its address, so the object has no copies.
    Class(const Class&) = delete;
    Class& operator=(const Class&) = delete;
    /// Leaves the list as it is: the list is only read while all skill libraries are loaded.
    virtual ~Class() = 0;

    /// The skill's stable identifier (UTF-8), the same in every version of the skill.
    [[nodiscard]] virtual std::string_view id() const = 0;
    /// The skill's name as shown to the user.
    [[nodiscard]] virtual std::wstring displayName() const = 0;
    /// The skill's version as shown to the user (UTF-8), for example "1.4.2".
    [[nodiscard]] virtual std::string_view version() const = 0;
    /// Hands each element class of the skill to the registry, once each. The element classes must
    /// stay at their addresses until the skill's library is unloaded.
    virtual void registerElementClasses(Registry& registry) const = 0;
    /// Makes the skill's instance; never null. The workbench calls it once, before it creates
    /// the first element of the skill.
    [[nodiscard]] virtual std::unique_ptr<Skill> createSkill() const = 0;

    /// Every skill class constructed so far in this process, newest first. The list does not own
    /// the classes. The reference stays valid until the process ends.
    [[nodiscard]] static const std::forward_list<std::reference_wrapper<Class>>& allSkills();

private:
    static utils::memory::SafeGlobal<std::forward_list<std::reference_wrapper<Class>>> _allSkills;
};

/// Receives the element classes of a skill; implemented by the workbench.
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT Skill::Class::Registry {
public:
    Registry();
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    virtual ~Registry() = 0;

    /// Makes an element class known to the workbench. The class is kept by reference.
    /// Throws std::invalid_argument when its id or UUID is taken by another element class.
    virtual void registerElementClass(const Element::Class& elementClass) = 0;
};

} // namespace corvane::workbench::skill
