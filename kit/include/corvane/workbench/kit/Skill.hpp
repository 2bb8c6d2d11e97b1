#pragma once

#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::kit {

/// A skill with its element classes. One static object in the skill's library is all there is to
/// registration:
///
///     const kit::Skill kPumpStation({.id = "PumpStation", .displayName = "Pump station",
///                                    .version = "1.0.0"},
///                                   {kArea, kPump, kValve});
///
/// The classes may stand in any source file of the library, which holds one skill.
class Skill : public skill::Skill::Class {
public:
    /// What a skill is, in one statement. See skill::Skill::Class.
    struct Description {
        /// Stable, the same in every version.
        Text id{};
        /// As shown to the user, translated.
        Text displayName{};
        /// As shown to the user: "1.4.2".
        Text version{};
        /// The context in which the texts of the library are translated; without it the id.
        Text translationContext{};
    };

    /// Registers the skill. The classes are referred to and checked in registerElementClasses().
    Skill(const Description& description,
          std::initializer_list<std::reference_wrapper<const skill::Element::Class>> classes);
    ~Skill() override;

    [[nodiscard]] std::string_view id() const override;
    [[nodiscard]] std::wstring displayName() const override;
    [[nodiscard]] std::string_view version() const override;
    /// Checks the descriptions of all classes first; throws std::logic_error with a sentence for
    /// the first mistake.
    void registerElementClasses(Registry& registry) const override;
    /// An instance that does nothing; a subclass may have one of its own.
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override;

private:
    Description description_;
    std::vector<std::reference_wrapper<const skill::Element::Class>> classes_;
};

} // namespace corvane::workbench::kit
