// What the pages of the documentation name is there: the files of their commands, those that stand
// in backquotes, and the targets of their links.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Lines linesOf(std::istream&& stream) {
    Lines lines;
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

/// The words of a command as a shell splits them, without their quotation marks.
std::vector<std::string> wordsOf(std::string_view command) {
    std::vector<std::string> words;
    std::string word;
    char quote = 0;
    for (const char character : command) {
        if (quote != 0 ? character == quote : character == '"' || character == '\'') {
            quote = quote != 0 ? '\0' : character;
        } else if (character == ' ' && quote == 0) {
            words.push_back(std::exchange(word, {}));
        } else {
            word += character;
        }
    }
    words.push_back(word);
    std::erase(words, std::string());
    return words;
}

/// A page of the documentation, which names files by their paths in the checkout.
class Page {
public:
    Page(const Lines& lines, const fs::path& folder) : folder_(folder) {
        bool inBlock = false;
        bool mayHoldCommands = false;
        std::string command;
        for (const std::string& line : lines) {
            if (line.starts_with("```")) {
                inBlock = !inBlock;
                mayHoldCommands = line == "```" || line == "```console" || line == "```sh";
            } else if (!inBlock) {
                readProse(line);
            } else if (mayHoldCommands && (!command.empty() || startsCommand(line))) {
                command += line.starts_with("$ ") ? line.substr(2) : line;
                if (command.ends_with('\\')) {
                    command.back() = ' ';
                } else {
                    readCommand(std::exchange(command, {}));
                }
            }
        }
    }

    /// The files and folders that the page names and that do not exist.
    [[nodiscard]] const std::vector<std::string>& missing() const { return missing_; }
    [[nodiscard]] std::size_t commandCount() const { return commandCount_; }

private:
    static bool startsCommand(const std::string& line) {
        static const std::regex start(
            R"(\$ .*|(\./|\.ci/|build/|cmake |ctest |skillbench |docker ).*)");
        return std::regex_match(line, start);
    }

    void readProse(const std::string& line) {
        static const std::regex link(R"(\]\(([^)#:]+)\))");
        for (auto match = std::sregex_iterator(line.begin(), line.end(), link);
             match != std::sregex_iterator(); ++match) {
            expect((folder_ / (*match)[1].str()).lexically_normal(), (*match)[1]);
        }
        static const std::regex code("`([^` ]+)`");
        for (auto match = std::sregex_iterator(line.begin(), line.end(), code);
             match != std::sregex_iterator(); ++match) {
            const std::string text = (*match)[1];
            introduced_.insert(text);
            static const std::regex inCheckout(
                R"((\.ci|bench|cmake|docs|examples|fuzz|host|include|kit|platform|src|testing|tests|tools)/[\w./-]*)");
            if (!inProject_ && std::regex_match(text, inCheckout)) {
                expect(text, text);
            }
        }
    }

    void readCommand(const std::string& command) {
        ++commandCount_;
        const std::vector<std::string> words = wordsOf(command);
        if (command.starts_with("skillbench new ")) {
            inProject_ = true;
        }
        for (std::size_t index = 0; index < words.size(); ++index) {
            std::string word = words[index];
            const std::string before = index == 0 ? "" : words[index - 1];
            if (before == "-o" || before == ">" || before == "-B" || before == "--json" ||
                before == "--prefix") {
                made_.push_back(word);
                continue;
            }
            if (word.starts_with('-')) {
                word.erase(0,
                           word.find('=') == std::string::npos ? word.size() : word.find('=') + 1);
            }
            if (word.starts_with("$PWD/")) {
                word.erase(0, std::string_view("$PWD/").size());
            }
            if (namesFile(word) && !isKnown(word)) {
                missing_.push_back(word);
            }
        }
        if (command.starts_with("./dev package")) {
            made_.emplace_back("build/package");
        }
    }

    static bool namesFile(const std::string& word) {
        static const std::regex file(
            R"([\w.][\w./-]*/[\w./-]*|[\w./-]+\.(json|so|dll|exe|md|cpp|hpp|txt|sh))");
        return std::regex_match(word, file);
    }

    [[nodiscard]] bool isKnown(const std::string& word) const {
        const fs::path path = fs::path(word).lexically_normal();
        const auto holds = [&](const fs::path& folder) {
            const auto [end, rest] = std::ranges::mismatch(folder, path);
            return end == folder.end();
        };
        // A page that shows what is said of a file that does not exist calls it so.
        return inProject_ || path == "build/tools" || path.stem() == "missing" ||
               fs::exists(CHECKOUT_FOLDER / path) || introduced_.contains(word) ||
               std::ranges::any_of(made_, holds) || isBuilt(path);
    }

    /// Whether that library or program is one of those that stand beside the test's own skill.
    static bool isBuilt(const fs::path& path) {
        static const std::regex inBuild("build/[a-z]+/bin|");
        if (!std::regex_match(path.parent_path().generic_string(), inBuild)) {
            return false;
        }
        const fs::path here = fs::path(LIBRARY_FOLDER) / path.stem();
        return std::ranges::any_of(
            std::vector<std::string>{"", ".so", ".dll", ".exe"},
            [&](const std::string& extension) { return fs::exists(here.string() + extension); });
    }

    void expect(const fs::path& path, const std::string& name) {
        if (!fs::exists(CHECKOUT_FOLDER / path)) {
            missing_.push_back(name);
        }
    }

    fs::path folder_;
    /// The page has made a project of its own, in which it goes on; the project is tested by
    /// itself.
    bool inProject_ = false;
    std::set<std::string> introduced_;
    std::vector<fs::path> made_;
    std::vector<std::string> missing_;
    std::size_t commandCount_ = 0;
};

TEST(NamedFiles, OfEveryPageExist) {
    std::vector<fs::path> pages{"README.md", "CONTRIBUTING.md"};
    for (const char* const folder : {"docs", "examples"}) {
        for (const auto& entry :
             fs::recursive_directory_iterator(CHECKOUT_FOLDER / fs::path(folder))) {
            if (entry.path().extension() == ".md") {
                pages.push_back(entry.path().lexically_relative(CHECKOUT_FOLDER));
            }
        }
    }
    std::size_t commandCount = 0;
    for (const fs::path& file : pages) {
        const Page page(linesOf(std::ifstream(CHECKOUT_FOLDER / file)), file.parent_path());
        EXPECT_THAT(page.missing(), IsEmpty()) << file;
        commandCount += page.commandCount();
    }
    EXPECT_GT(commandCount, 30U);
}

Page pageOf(const std::string& text) {
    return {linesOf(std::istringstream(text)), "docs"};
}

TEST(NamedFiles, OfACommandAreFoundMissing) {
    EXPECT_THAT(
        pageOf("```\n./dev skillbench check --skill build/tools/bin/first-skill.so plant.json\n"
               "./nothing\nkey = a/b.json\n```\n")
            .missing(),
        ElementsAre("plant.json", "./nothing"));
    EXPECT_THAT(pageOf("```console\n$ skillbench show --skill build/tools/bin/last-skill.so \\\n"
                       "    docs/none.json\nx/y.json: error\n```\n")
                    .missing(),
                ElementsAre("build/tools/bin/last-skill.so", "docs/none.json"));
    EXPECT_THAT(
        pageOf("```\ncmake -S examples/none -B build/none -DX=$PWD/build/no\n```\n").missing(),
        ElementsAre("examples/none", "build/no"));
}

TEST(NamedFiles, MayBeMadeByACommandBeforeOrShownOnThePage) {
    EXPECT_THAT(pageOf("Put it into `plant.json`:\n```\n"
                       "./dev skillbench edit plant.json -o edited.json\n"
                       "./dev skillbench check edited.json\n"
                       "cmake -S . -B build/own\nbuild/own/tool\n```\n")
                    .missing(),
                IsEmpty());
}

TEST(NamedFiles, InBackquotesAndLinksAreFoundMissing) {
    EXPECT_THAT(pageOf("See `docs/none.md`, `a/b`, [this](json.md), [that](nothing.md) and\n"
                       "[a page](https://example.org).\n")
                    .missing(),
                ElementsAre("nothing.md", "docs/none.md"));
}

} // namespace
