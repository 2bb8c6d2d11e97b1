#include "WorkbenchFixture.hpp"

#include <stdexcept>
#include <string>
#include <utility>

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

class WorkbenchSaveRefused : public WorkbenchTest {
protected:
    void SetUp() override {
        file = folder.write("a.json", "old");
        ASSERT_TRUE(load(R"({"children": [{"group": {"name": "a", "children": [
                             {"point": {"name": "b"}}]}}]})")
                        .loaded);
    }
    /// Why the configuration cannot be saved; the file must not have changed.
    std::string refusal() {
        std::string text = textOf(workbench.saveConfiguration(file));
        EXPECT_EQ(TemporaryFolder::read(file), "old");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
        corvane::workbench::json::internal::StringOutputStream stream;
        EXPECT_EQ(textOf(workbench.saveConfiguration(stream)), text);
        EXPECT_EQ(stream.take(), "");
        return text;
    }

    TemporaryFolder folder;
    std::filesystem::path file;
};

TEST_F(WorkbenchSaveRefused, WhenASkillSavesAMemberThatIsReserved) {
    for (const std::string member : {"name", "UUID", "ACL", "children"}) {
        point("a.b").furtherMembers = {{member, {}}};
        EXPECT_EQ(refusal(), "the element “a.b” saves a member “" + member +
                                 "”, which is reserved for the workbench");
    }
}

TEST_F(WorkbenchSaveRefused, WhenASkillSavesChildrenOfItsOwnInFrontOfThoseThatThereAre) {
    ASSERT_EQ(textOf(workbench.add("a.b", "group", "c")), "success");
    for (const std::string_view children : {"null", "[]", "[1]", "[{}]", "[{}, {}, {}]"}) {
        point("a.b").furtherMembers = {
            {"children", corvane::workbench::json::Value::fromString(children).value()}};
        EXPECT_EQ(refusal(), "the element “a.b” saves a member “children”, which is reserved for "
                             "the workbench");
    }
}

TEST_F(WorkbenchSaveRefused, WhenASkillSavesAMemberTwice) {
    point("a.b").furtherMembers = {{"more", {}}, {"limit", {}}};
    EXPECT_EQ(refusal(), "the element “a.b” saves two members “limit”");
    point("a.b").furtherMembers = {{"more", {}}};
    EXPECT_TRUE(workbench.saveConfiguration(file));
}

TEST_F(WorkbenchSaveRefused, WhenASkillSavesWhatIsNestedTooDeeplyToBeRead) {
    corvane::workbench::json::Value value;
    for (int level = 0; level != 600; ++level) {
        corvane::workbench::json::Array array;
        array.append(std::move(value));
        value = std::move(array);
    }
    point("a.b").furtherMembers.emplace_back("settings", std::move(value));
    const std::string text = refusal();
    EXPECT_THAT(text, testing::StartsWith(
                          "the configuration could not be loaded again: JSON syntax error (line "));
    EXPECT_THAT(text, testing::EndsWith("objects and arrays are nested deeper than 512 levels"));
}

} // namespace
