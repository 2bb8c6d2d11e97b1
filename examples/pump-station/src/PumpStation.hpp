#pragma once

#include <corvane/workbench/skill/Skill.hpp>

namespace pump_station {

/// The skill itself. Its one static class object, in the source file, enters the skill into the
/// workbench's list when the library is loaded; nothing else has to be called.
///
/// The running instance of the skill. This skill keeps nothing beyond its elements.
class PumpStation final : public corvane::workbench::skill::Skill {
public:
    class Class;
};

/// What the workbench learns about the skill before it creates an element.
class PumpStation::Class final : public corvane::workbench::skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override;
    [[nodiscard]] std::wstring displayName() const override;
    [[nodiscard]] std::string_view version() const override;
    void registerElementClasses(Registry& registry) const override;
    [[nodiscard]] std::unique_ptr<corvane::workbench::skill::Skill> createSkill() const override;
};

} // namespace pump_station
