// The files of the folder "broken" have one fault each and are named after it. Beside each stands
// what `skillbench check` prints for it there.
#include "PumpStationTest.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/host/ElementNode.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

using namespace pump_station::tests;
namespace host = corvane::workbench::host;

/// The names of the faults, sorted.
std::vector<std::string> faults(std::string_view extension) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(configuration("broken"))) {
        if (entry.path().extension() == extension) {
            names.push_back(entry.path().stem().string());
        }
    }
    std::ranges::sort(names);
    return names;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

/// A folder that ends with the test.
class TemporaryFolder {
public:
    TemporaryFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("pump-station-" + corvane::utils::core::Uuid::generate().toString())) {
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    /// Writes a file and returns its path.
    [[nodiscard]] std::filesystem::path write(const std::string& name,
                                              std::string_view text) const {
        const std::filesystem::path file = path_ / name;
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

private:
    std::filesystem::path path_;
};

class BrokenConfiguration : public PumpStationTest,
                            public testing::WithParamInterface<std::string> {
protected:
    static std::filesystem::path file() { return configuration("broken") / (GetParam() + ".json"); }
};

TEST_P(BrokenConfiguration, IsReportedAsExpectedAndChangesNothingUnlessItIsLoaded) {
    const std::string plant = readFile(configuration("plant.json"));
    bench.loadFile(configuration("plant.json"));
    const host::ElementNode* station = bench.workbench().findElement("Station");
    const std::string text = readFile(file());
    const TemporaryFolder folder;
    const std::filesystem::path copy = folder.write(GetParam() + ".json", text);

    const host::LoadResult result = bench.tryLoadFile(copy);

    EXPECT_EQ(joined(bench.problems()),
              readFile(configuration("broken") / (GetParam() + ".expected")));
    EXPECT_EQ(readFile(copy), text);
    if (result) {
        EXPECT_FALSE(bench.has("Station"));
    } else {
        EXPECT_EQ(bench.workbench().findElement("Station"), station);
        EXPECT_EQ(bench.saved(), plant);
        EXPECT_THAT(bench, Announced(""));
    }
}

INSTANTIATE_TEST_SUITE_P(Every, BrokenConfiguration, testing::ValuesIn(faults(".json")),
                         [](const testing::TestParamInfo<std::string>& fault) {
                             std::string name = fault.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

class BrokenConfigurations : public PumpStationTest {
protected:
    /// A configuration whose settings nest arrays; `levels` counts all levels of the text.
    static std::string nested(std::size_t levels) {
        // The root, its children, the child, the element, its settings.
        const std::size_t arrays = levels - 5;
        return "{\"children\": [{\"PumpStation.Controller\": {\"name\": \"PLC\", \"settings\": "
               "{\"deep\":\n" +
               std::string(arrays, '[') + std::string(arrays, ']') + "}}}]}";
    }
};

TEST_F(BrokenConfigurations, AreEachExpectedToBeReported) {
    EXPECT_EQ(faults(".json"), faults(".expected"));
    EXPECT_GE(faults(".json").size(), 100U);
}

TEST_F(BrokenConfigurations, MayBeNested512LevelsDeep) {
    bench.load(nested(512));
    EXPECT_THAT(bench.at("PLC.settings"),
                HasText("{\"deep\":" + std::string(507, '[') + std::string(507, ']') + "}"));
    const std::string written = bench.saved();
    bench.load(written);
    EXPECT_EQ(bench.saved(), written);
}

TEST_F(BrokenConfigurations, AreRefusedAt513Levels) {
    bench.loadFile(configuration("plant.json"));
    EXPECT_FALSE(bench.tryLoad(nested(513)));
    EXPECT_THAT(
        bench.problems(),
        ElementsAre("configuration.json:2:508: error: JSON syntax error: objects and arrays are "
                    "nested deeper than 512 levels"));
    EXPECT_EQ(bench.saved(), readFile(configuration("plant.json")));
}

TEST_F(BrokenConfigurations, AreReportedAtTheEndOf100Megabytes) {
    bench.loadFile(configuration("plant.json"));
    // Many lines, so that the place at the end has to be counted.
    std::string text = "{\"children\": [{\"PumpStation.Area\": {\"name\": \"Area\",\n";
    constexpr std::size_t kSize = 100'000'000;
    const std::string blanks = std::string(999'999, ' ') + "\n";
    text.reserve(kSize + 2 * blanks.size());
    while (text.size() < kSize) {
        text += blanks;
    }
    text += "  \"colour\": \"blue\"}}]}\n";
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.write("large.json", text);
    const host::LoadResult result = bench.tryLoadFile(file);
    EXPECT_FALSE(result.loaded);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(result.problems[0].line, 102U);
    EXPECT_EQ(result.problems[0].column, 3U);
    EXPECT_EQ(result.problems[0].text, "unknown parameter \"colour\"");
    EXPECT_EQ(bench.saved(), readFile(configuration("plant.json")));
    EXPECT_EQ(std::filesystem::file_size(file), text.size());
}

TEST_F(BrokenConfigurations, LoseOnlyWhatIsBrokenOnRequest) {
    const host::LoadResult result = bench.tryLoadFile(
        configuration("broken") / "duplicate-sibling-names.json", {.keepGoing = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(result.problems.size(), 1U);
    EXPECT_TRUE(bench.has("PLC.Pump"));
    EXPECT_EQ(bench.element("PLC").node().childCount(), 1U);
}

TEST_F(BrokenConfigurations, WithBrokenRowsLoseTheElementOnRequest) {
    const host::LoadResult result = bench.tryLoadFile(
        configuration("broken") / "unknown-input-parameter.json", {.keepGoing = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(result.problems.size(), 1U);
    EXPECT_TRUE(bench.has("PLC.Pump"));
    EXPECT_FALSE(bench.has("Balancer"));
    EXPECT_THAT(bench.element("PLC.Pump").referrers(), IsEmpty());
}

TEST_F(BrokenConfigurations, CanBeMissing) {
    const host::LoadResult result = bench.tryLoadFile(configuration("no-such-file.json"));
    EXPECT_FALSE(result.loaded);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_THAT(result.problems[0].text, HasSubstr("no-such-file.json"));
}

} // namespace
