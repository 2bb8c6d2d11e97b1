#include "WorkbenchFixture.hpp"

#include <stdexcept>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::tests::WorkbenchTest;

class WorkbenchSave : public WorkbenchTest {};

constexpr std::string_view kConfiguration = R"({
  "children": [
    {
      "group": {
        "name": "[a.b]",
        "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad2",
        "ACL": {
          "owner": "x",
          "rights": [
            1,
            2.5,
            18446744073709551615,
            null
          ]
        },
        "children": [
          {
            "point": {
              "name": "Süd",
              "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad3",
              "limit": -7,
              "target": "[a.b]",
              "attribute": "[a.b].Süd.value",
              "rows": [
                "[a.b].gone",
                ".import:x.y",
                ""
              ]
            }
          }
        ]
      }
    },
    {
      "leaf": {
        "name": "c",
        "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad4"
      }
    }
  ]
}
)";

TEST_F(WorkbenchSave, WritesWhatWasLoaded) {
    EXPECT_TRUE(load(kConfiguration).loaded);
    EXPECT_EQ(saved(), kConfiguration);
}

TEST_F(WorkbenchSave, WritesAnEmptyTree) {
    EXPECT_EQ(saved(), "{\n  \"children\": []\n}\n");
    loadClean(saved());
}

TEST_F(WorkbenchSave, ReplacesTheFile) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.json", "old");
    EXPECT_TRUE(load(kConfiguration).loaded);
    ASSERT_TRUE(workbench.saveConfiguration(file));
    EXPECT_EQ(TemporaryFolder::read(file), kConfiguration);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(WorkbenchSave, SaysWhyItCannotWrite) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "missing" / "a.json";
    EXPECT_THAT(textOf(workbench.saveConfiguration(file)),
                testing::StartsWith("cannot write " + file.string() + ": "));
}

TEST_F(WorkbenchSave, KeepsGeneratedUuids) {
    loadClean(R"({"children": [{"group": {"name": "a"}}]})");
    const auto uuid = workbench.findElement("a")->uuid();
    loadClean(saved());
    EXPECT_EQ(workbench.findElement("a")->uuid(), uuid);
}

} // namespace
