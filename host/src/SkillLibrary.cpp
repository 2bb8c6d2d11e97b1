#include <corvane/workbench/host/SkillLibrary.hpp>

#include "SharedLibrary.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/text.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

namespace corvane::workbench::host {

namespace {

using SkillClasses = std::vector<std::reference_wrapper<const skill::Skill::Class>>;

struct OpenLibrary {
    const void* handle;
    SkillClasses skillClasses;
};

/// Every skill library that this process has opened. A library that is opened again registers
/// nothing, so what it registered the first time is kept here.
std::vector<OpenLibrary>& openLibraries() {
    static std::vector<OpenLibrary> libraries;
    return libraries;
}

Problem problem(const std::filesystem::path& path, const std::string& text) {
    Problem result;
    result.text = inQuotes(pathText(path)) + " " + text;
    return result;
}

/// Why the file cannot be a library, if that shows without loading it.
std::optional<Problem> checkFile(const std::filesystem::path& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return problem(path, "does not exist");
    }
    if (error) {
        return problem(path, "cannot be read: " + error.message());
    }
    if (std::filesystem::is_directory(status)) {
        return problem(path, "is a directory, not a skill library");
    }
    if (!std::ifstream(path, std::ios::binary).good()) {
        return problem(path, "cannot be read");
    }
    return std::nullopt;
}

} // namespace

SkillLibrary::SkillLibrary(std::filesystem::path path, SkillClasses skillClasses)
    : path_(std::move(path)), skillClasses_(std::move(skillClasses)) {}

Result<SkillLibrary> SkillLibrary::open(const std::filesystem::path& path) {
    if (auto failure = checkFile(path)) {
        return tl::unexpected(*std::move(failure));
    }
    // The loader looks for a name without a folder in its own places.
    std::error_code error;
    std::filesystem::path absolute = std::filesystem::absolute(path, error);
    if (error) {
        return tl::unexpected(problem(path, "cannot be found: " + error.message()));
    }

    const auto& all = skill::Skill::Class::allSkills();
    const auto countBefore = std::distance(all.begin(), all.end());
    const std::string text = pathText(path);
    auto library = callSkill(
        CurrentOperation::Kind::OpenLibrary, [&] { return SharedLibrary::open(absolute); }, text);
    if (!library) {
        return tl::unexpected(
            problem(path, "is no library that can be loaded: " + library.error()));
    }
    auto& libraries = openLibraries();
    const auto known =
        std::find_if(libraries.begin(), libraries.end(), [&](const OpenLibrary& candidate) {
            return candidate.handle == library->handle();
        });
    if (known != libraries.end()) {
        return SkillLibrary(std::move(absolute), known->skillClasses);
    }
    const auto added = std::distance(all.begin(), all.end()) - countBefore;
    if (added == 0) {
        return tl::unexpected(problem(path, "is a library but holds no skill"));
    }
    SkillClasses skillClasses(all.begin(), std::next(all.begin(), added));
    std::reverse(skillClasses.begin(), skillClasses.end());
    libraries.push_back({library->handle(), skillClasses});
    library->keepLoaded();
    return SkillLibrary(std::move(absolute), std::move(skillClasses));
}

} // namespace corvane::workbench::host
