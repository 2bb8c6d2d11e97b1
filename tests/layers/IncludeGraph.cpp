#include "IncludeGraph.hpp"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <sstream>

namespace corvane::tests {

namespace fs = std::filesystem;

std::vector<std::string> includedNames(std::string_view text) {
    std::vector<std::string> names;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        const auto hash = line.find_first_not_of(" \t");
        if (hash == std::string::npos || line[hash] != '#') {
            continue;
        }
        const auto word = line.find_first_not_of(" \t", hash + 1);
        if (word == std::string::npos || line.compare(word, 7, "include") != 0) {
            continue;
        }
        const auto open = line.find_first_of("<\"", word + 7);
        const auto close = line.find_first_of(">\"", open == std::string::npos ? open : open + 1);
        if (close != std::string::npos) {
            names.push_back(line.substr(open + 1, close - open - 1));
        }
    }
    return names;
}

IncludeGraph::IncludeGraph(const fs::path& top, const std::vector<std::string>& folders,
                           const std::vector<std::string>& includeFolders) {
    for (const auto& folder : folders) {
        for (const auto& entry : fs::recursive_directory_iterator(top / folder)) {
            const auto extension = entry.path().extension();
            if (extension == ".hpp" || extension == ".cpp") {
                edges_[entry.path().lexically_relative(top).generic_string()];
            }
        }
    }
    for (auto& [file, targets] : edges_) {
        std::ifstream stream(top / file, std::ios::binary);
        const std::string text(std::istreambuf_iterator<char>(stream), {});
        for (const auto& name : includedNames(text)) {
            std::vector<std::string> places{
                (fs::path(file).parent_path() / name).lexically_normal().generic_string()};
            for (const auto& folder : includeFolders) {
                places.push_back(folder + "/" + name);
            }
            const auto place =
                std::ranges::find_if(places, [&](const auto& p) { return edges_.contains(p); });
            if (place != places.end()) {
                targets.push_back(*place);
            }
        }
    }
}

std::vector<std::string> IncludeGraph::findCircle() const {
    std::set<std::string> done;
    std::vector<std::string> path;
    const std::function<bool(const std::string&)> visit = [&](const std::string& file) {
        if (done.contains(file)) {
            return false;
        }
        if (const auto start = std::ranges::find(path, file); start != path.end()) {
            path.erase(path.begin(), start);
            path.push_back(file);
            return true;
        }
        path.push_back(file);
        for (const auto& target : edges_.at(file)) {
            if (visit(target)) {
                return true;
            }
        }
        path.pop_back();
        done.insert(file);
        return false;
    };
    for (const auto& [file, targets] : edges_) {
        if (visit(file)) {
            return path;
        }
    }
    return {};
}

} // namespace corvane::tests
