// Configurations whose file names, paths and line ends are those of other places.
#include "WorkbenchFixture.hpp"
#include "utils/io/DeepFolder.hpp"

namespace {

using corvane::tests::DeepFolder;
using corvane::tests::TemporaryFolder;
using corvane::tests::WorkbenchTest;

class Files : public WorkbenchTest {};

constexpr std::string_view kConfiguration = R"({
  "children": [
    {
      "leaf": {
        "name": "Süd",
        "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad2"
      }
    }
  ]
}
)";

std::string withCarriageReturns(std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (character == '\n') {
            result += '\r';
        }
        result += character;
    }
    return result;
}

TEST_F(Files, LinesMayEndInCarriageReturnAndLineFeed) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.json", withCarriageReturns(kConfiguration));
    EXPECT_THAT(lines(workbench.loadConfiguration(file)), testing::IsEmpty());
    EXPECT_THAT(keys(), testing::ElementsAre("Süd"));
}

TEST_F(Files, SavingEndsLinesInLineFeedsOnly) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.json", withCarriageReturns(kConfiguration));
    EXPECT_TRUE(workbench.loadConfiguration(file).loaded);
    ASSERT_TRUE(workbench.saveConfiguration(file));
    EXPECT_EQ(TemporaryFolder::read(file), kConfiguration);
}

TEST_F(Files, ACarriageReturnIsNoLineOfItsOwn) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.json", "{\r\n\r\n  5}");
    const auto result = workbench.loadConfiguration(file);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(result.problems.front().line, 3U);
    EXPECT_EQ(result.problems.front().column, 3U);
}

TEST_F(Files, PathsMayBeOutsideAscii) {
    const TemporaryFolder folder;
    const auto inner = folder.path() / u8"Anlage S\u00FCd \u8A2D\u5099 \U0001F600";
    std::filesystem::create_directory(inner);
    const auto file = inner / u8"Gr\u00F6\u00DFe.json";
    EXPECT_TRUE(load(kConfiguration).loaded);
    ASSERT_TRUE(workbench.saveConfiguration(file));
    EXPECT_EQ(TemporaryFolder::read(file), kConfiguration);
    EXPECT_TRUE(workbench.loadConfiguration(file).loaded);
}

TEST_F(Files, AMessageNamesAPathOutsideAsciiInUtf8) {
    const auto result = workbench.loadConfiguration(u8"S\u00FCd \U0001F600.json");
    EXPECT_THAT(lines(result),
                testing::ElementsAre(testing::StartsWith("error: cannot open S\xC3\xBC"
                                                         "d \xF0\x9F\x98\x80.json: ")));
}

TEST_F(Files, PathsMayHaveAnyLength) {
    const TemporaryFolder folder;
    const DeepFolder deep(folder.path());
    const auto file = deep.path() / "file.json";
    ASSERT_GT(file.native().size(), 300U);
    EXPECT_TRUE(load(kConfiguration).loaded);
    ASSERT_TRUE(workbench.saveConfiguration(file));
    EXPECT_EQ(TemporaryFolder::read(deep.file()), kConfiguration);
    EXPECT_TRUE(workbench.loadConfiguration(file).loaded);
}

} // namespace
