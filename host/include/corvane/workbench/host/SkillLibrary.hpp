#pragma once

#include <corvane/workbench/host/Problem.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <filesystem>
#include <functional>
#include <span>
#include <vector>

namespace corvane::workbench::host {

/// A shared library that holds skills. Opening it runs its static initialisers, which enter its
/// skill classes into skill::Skill::Class::allSkills(). A library that was opened stays loaded
/// until the process ends, because that list keeps referring to its classes; opening it again finds
/// the same classes. Libraries are opened one at a time.
class SkillLibrary {
public:
    /// Opens a library. Fails, with a sentence that names the path, when the file is missing or
    /// cannot be read, is a directory, is no library that this program can load, or holds no
    /// skill.
    [[nodiscard]] static Result<SkillLibrary> open(const std::filesystem::path& path);

    /// The absolute path under which the library was opened.
    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }
    /// The library's skill classes, oldest first; never empty.
    [[nodiscard]] std::span<const std::reference_wrapper<const skill::Skill::Class>>
    skillClasses() const noexcept {
        return skillClasses_;
    }

private:
    SkillLibrary(std::filesystem::path path,
                 std::vector<std::reference_wrapper<const skill::Skill::Class>> skillClasses);

    std::filesystem::path path_;
    std::vector<std::reference_wrapper<const skill::Skill::Class>> skillClasses_;
};

} // namespace corvane::workbench::host
