#include "../CommandLine.hpp"
#include "../ExitCode.hpp"
#include "../Failure.hpp"
#include "../commands.hpp"
#include "../text.hpp"
#include "ProjectNames.hpp"
#include "templates.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/io/FileOutputStream.hpp>

#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>

namespace corvane::skillbench {

namespace {

using Places = std::map<std::string, std::string, std::less<>>;

Places placesOf(const ProjectNames& names) {
    const auto uuid = [] { return utils::core::Uuid::generate().toString(); };
    return {{"NAME", names.name},           {"ID", names.id}, {"CLASS", names.elementClass},
            {"NAMESPACE", names.nameSpace}, {"UUID", uuid()}, {"UUID_OF_FIRST", uuid()},
            {"UUID_OF_SECOND", uuid()}};
}

/// The text with the values in place of "@CLASS@" and its like.
std::string filledIn(std::string_view text, const Places& places) {
    std::string result;
    while (!text.empty()) {
        const std::size_t begin = text.find('@');
        result += text.substr(0, begin);
        if (begin == std::string_view::npos) {
            break;
        }
        const std::size_t end = text.find('@', begin + 1);
        const auto place = end == std::string_view::npos
                               ? places.end()
                               : places.find(text.substr(begin + 1, end - begin - 1));
        if (place != places.end()) {
            result += place->second;
            text.remove_prefix(end + 1);
        } else {
            result += '@';
            text.remove_prefix(begin + 1);
        }
    }
    return result;
}

void write(const std::filesystem::path& file, std::string_view text) {
    std::filesystem::create_directories(file.parent_path());
    utils::io::FileOutputStream stream(file);
    stream.write(text);
    stream.close();
}

} // namespace

int newProject(Arguments arguments, const Streams& streams) {
    std::string name;
    std::optional<std::string> elementClass;
    std::optional<std::string> nameSpace;
    std::optional<std::string> parent;
    CommandLine commandLine("skillbench new",
                            "Writes the project of a new skill: an element class with settings, "
                            "rows and a reference, a configuration, tests, and build files. The "
                            "folder NAME must not exist.");
    commandLine.addValue("class", "CLASS", elementClass,
                         "the C++ class of its element (the name in CamelCase)");
    commandLine.addValue("namespace", "NAMESPACE", nameSpace,
                         "the C++ namespace (the name in snake_case)");
    commandLine.addValue("in", "FOLDER", parent, "where to put the project (here)");
    commandLine.addParameter("NAME", name, "the name of the skill, for example line-mixer");
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }

    const Places places = placesOf(projectNames(name, elementClass, nameSpace));
    const std::filesystem::path folder =
        (pathOf(parent.value_or("")) / pathOf(name)).lexically_normal();
    if (std::filesystem::exists(std::filesystem::symlink_status(folder))) {
        throw Failure(kWrongUsage, inQuotes(pathText(folder)) + " exists already");
    }
    try {
        for (const Template& file : templates()) {
            write(folder / pathOf(filledIn(file.path, places)), filledIn(file.text, places));
        }
        std::filesystem::permissions(folder / "ci/run",
                                     std::filesystem::perms::owner_exec |
                                         std::filesystem::perms::group_exec |
                                         std::filesystem::perms::others_exec,
                                     std::filesystem::perm_options::add);
    } catch (const std::system_error& error) {
        throw Failure(kWrongUsage, error.what());
    }
    const std::string path = pathText(folder);
    streams.out << "wrote the skill " << name << " to " << path << "; next:\n"
                << "  cd " << path << "\n"
                << "  cmake --preset release\n"
                << "  cmake --build --preset release\n"
                << "  ctest --preset release\n"
                << "  skillbench show --skill build/release/" << name
                << CORVANE_SKILL_SUFFIX " configurations/example.json\n";
    return kDone;
}

} // namespace corvane::skillbench
