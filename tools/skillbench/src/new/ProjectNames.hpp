#pragma once

#include <optional>
#include <string>

namespace corvane::skillbench {

/// What a new project and the things in it are called.
struct ProjectNames {
    /// As given: the folder, the library, and the target.
    std::string name;
    /// The skill's id, and what its element class's id begins with.
    std::string id;
    /// The C++ class of its element.
    std::string elementClass;
    std::string nameSpace;
};

/// Makes the other names from that of the project, as far as they are not given: "line-mixer" has
/// the id and the class "LineMixer" and the namespace "line_mixer". Throws a UsageFailure for names
/// that cannot be used.
[[nodiscard]] ProjectNames projectNames(const std::string& name,
                                        const std::optional<std::string>& elementClass,
                                        const std::optional<std::string>& nameSpace);

} // namespace corvane::skillbench
