// The guides quote code that is compiled and tested: each of their code blocks stands in one of the
// files that the guide is about, but for the indentation of the block as a whole.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(std::istream& stream) {
    Lines lines;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

Lines linesOf(const std::filesystem::path& file) {
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    return linesOf(stream);
}

Lines linesOf(const std::string& text) {
    std::istringstream stream(text);
    return linesOf(stream);
}

struct Block {
    std::size_t line = 0;
    Lines lines;
};

/// The fenced blocks of the languages that are compiled; not those of a shell and its output.
std::vector<Block> codeBlocks(const Lines& guide) {
    std::vector<Block> blocks;
    for (std::size_t index = 0; index < guide.size(); ++index) {
        if (guide[index] == "```cpp" || guide[index] == "```cmake" || guide[index] == "```json") {
            Block block{index + 1, {}};
            for (++index; index < guide.size() && guide[index] != "```"; ++index) {
                block.lines.push_back(guide[index]);
            }
            blocks.push_back(block);
        }
    }
    return blocks;
}

bool standsAt(const Lines& block, const Lines& file, std::size_t first) {
    const std::string& start = file[first];
    if (!start.ends_with(block[0])) {
        return false;
    }
    const std::string indentation = start.substr(0, start.size() - block[0].size());
    if (indentation.find_first_not_of(' ') != std::string::npos) {
        return false;
    }
    for (std::size_t line = 1; line < block.size(); ++line) {
        if (file[first + line] != (block[line].empty() ? "" : indentation + block[line])) {
            return false;
        }
    }
    return true;
}

bool standsIn(const Lines& block, const Lines& file) {
    for (std::size_t first = 0; first + block.size() <= file.size(); ++first) {
        if (standsAt(block, file, first)) {
            return true;
        }
    }
    return false;
}

/// The blocks of the guide, by line, that stand in none of the files.
std::vector<std::size_t> strangers(const Lines& guide, const std::vector<Lines>& files) {
    std::vector<std::size_t> result;
    for (const Block& block : codeBlocks(guide)) {
        const auto quotes = [&](const Lines& file) { return standsIn(block.lines, file); };
        if (std::ranges::none_of(files, quotes)) {
            result.push_back(block.line);
        }
    }
    return result;
}

void expectQuotes(std::string_view name, const std::vector<std::filesystem::path>& paths,
                  std::size_t count) {
    const Lines guide = linesOf(std::filesystem::path(GUIDES_FOLDER) / name);
    std::vector<Lines> files;
    for (const std::filesystem::path& path : paths) {
        files.push_back(linesOf(path));
    }
    EXPECT_EQ(codeBlocks(guide).size(), count);
    for (const std::size_t line : strangers(guide, files)) {
        ADD_FAILURE() << name << ':' << line << ": this code stands in no file of the example";
    }
}

TEST(CodeBlocks, OfTheGuideToSkillsAreThoseOfTheExample) {
    std::vector<std::filesystem::path> files{TESTS_FOLDER "/FirstSkill.cpp"};
    for (const auto& entry : std::filesystem::directory_iterator(EXAMPLE_FOLDER)) {
        files.push_back(entry.path());
    }
    expectQuotes("writing-a-skill.md", files, 22);
}

TEST(CodeBlocks, OfTheGuideToPropertiesAreThoseOfItsTest) {
    expectQuotes("properties.md", {TESTS_FOLDER "/PropertiesGuide.cpp"}, 8);
}

TEST(CodeBlocks, OfTheGuideToReferencesAreThoseOfItsTest) {
    expectQuotes("references.md",
                 {TESTS_FOLDER "/ReferencesGuide.cpp", EXAMPLE_FOLDER "/Mixer.cpp"}, 3);
}

TEST(CodeBlocks, AreFoundInsideAFileWhateverItsIndentation) {
    const Lines guide = linesOf(std::string("text\n```cpp\nif (a) {\n    b();\n\n}\n```\n"));
    const Lines file = linesOf(std::string("{\n    if (a) {\n        b();\n\n    }\n}\n"));
    EXPECT_TRUE(strangers(guide, {file}).empty());
}

TEST(CodeBlocks, ThatDifferFromTheFileAreReportedByLine) {
    const Lines guide = linesOf(std::string("```cpp\na();\nb();\n```\n\n```sh\nls\n```\n"));
    EXPECT_EQ(strangers(guide, {linesOf(std::string("a();\nc();\n"))}),
              std::vector<std::size_t>{1});
    EXPECT_EQ(strangers(guide, {linesOf(std::string("a();\n  b();\n"))}),
              std::vector<std::size_t>{1});
    EXPECT_EQ(strangers(guide, {linesOf(std::string("x a();\nx b();\n"))}),
              std::vector<std::size_t>{1});
}

} // namespace
