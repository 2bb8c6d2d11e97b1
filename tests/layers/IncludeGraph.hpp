#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::tests {

/// The include graph of a source tree: which file of ours includes which other file of ours.
///
/// A node is a file, named by its path relative to the top folder with "/" between the parts. An
/// edge is an #include that names a file of the graph; includes of anything else are left out.
class IncludeGraph {
public:
    /// Reads every .hpp and .cpp file below the named folders of the top folder. An include is
    /// looked up beside the including file first, then in the include folders (relative to the top
    /// folder).
    IncludeGraph(const std::filesystem::path& top, const std::vector<std::string>& folders,
                 const std::vector<std::string>& includeFolders);

    [[nodiscard]] const std::map<std::string, std::vector<std::string>>& edges() const {
        return edges_;
    }

    /// The files of one circle in order, the first one again at the end; empty when there is none.
    [[nodiscard]] std::vector<std::string> findCircle() const;

private:
    std::map<std::string, std::vector<std::string>> edges_;
};

/// The names between the quotes or angle brackets of the #include lines of a text, in order.
[[nodiscard]] std::vector<std::string> includedNames(std::string_view text);

} // namespace corvane::tests
