# Writes the templates of a new project as C++ source: cmake -DSOURCE=folder -DTARGET=file -P this.
# Each line names a template and the path that it gets in the project.
set(templates
    "CMakeLists.txt|CMakeLists.txt"
    "CMakePresets.json|CMakePresets.json"
    "README.md|README.md"
    "gitignore|.gitignore"
    "ci/run|ci/run"
    "configurations/example.json|configurations/example.json"
    "src/Input.cpp|src/Input.cpp"
    "src/Input.hpp|src/Input.hpp"
    "src/class.cpp|src/@CLASS@.cpp"
    "src/class.hpp|src/@CLASS@.hpp"
    "src/names.hpp|src/names.hpp"
    "src/skill.cpp|src/skill.cpp"
    "tests/CMakeLists.txt|tests/CMakeLists.txt"
    "tests/class.cpp|tests/@CLASS@.cpp")

set(entries "")
foreach(template IN LISTS templates)
    string(REPLACE "|" ";" parts "${template}")
    list(GET parts 0 file)
    list(GET parts 1 path)
    file(READ "${SOURCE}/${file}" text)
    string(APPEND entries "    {\"${path}\", R\"template(${text})template\"},\n")
endforeach()
file(CONFIGURE OUTPUT "${TARGET}" @ONLY NEWLINE_STYLE UNIX CONTENT [[
#include "new/templates.hpp"

namespace corvane::skillbench {

namespace {

constexpr Template kTemplates[] = {
@entries@};

} // namespace

std::span<const Template> templates() {
    return kTemplates;
}

} // namespace corvane::skillbench
]])
