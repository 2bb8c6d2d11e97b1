#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::SkillbenchTest;
using testing::HasSubstr;
using testing::StartsWith;

class SkillbenchSave : public SkillbenchTest {};

constexpr std::string_view kSaved = R"({
  "children": [
    {
      "tank": {
        "name": "T",
        "UUID": "10000000-0000-4000-8000-000000000001",
        "level": 5,
        "automatic": false,
        "setPoint": 0,
        "limits": []
      }
    }
  ]
}
)";

constexpr std::string_view kTank =
    R"({"children":[{"tank":{"level":5,"UUID":"10000000-0000-4000-8000-000000000001","name":"T"}}]})";

TEST_F(SkillbenchSave, WritesTheConfigurationAgain) {
    write("plant.json", kTank);
    EXPECT_EQ(runOn("save", {"plant.json"}), (Outcome{0, "saved 1 element to plant.json\n", ""}));
    EXPECT_EQ(read("plant.json"), kSaved);
}

TEST_F(SkillbenchSave, WritesItToAnotherFile) {
    write("plant.json", kTank);
    EXPECT_EQ(runOn("save", {"plant.json", "-o", "Öl.json"}),
              (Outcome{0, "saved 1 element to Öl.json\n", ""}));
    EXPECT_EQ(read("plant.json"), kTank);
    EXPECT_EQ(read("Öl.json"), kSaved);
}

TEST_F(SkillbenchSave, SavesWhatItSavedAsItIs) {
    write("plant.json", kSaved);
    EXPECT_EQ(runOn("save", {"--output", "again.json", "plant.json"}).exitCode, 0);
    EXPECT_EQ(read("again.json"), kSaved);
}

TEST_F(SkillbenchSave, LeavesTheFilesAloneWhenTheConfigurationCannotBeLoaded) {
    write("plant.json", "{\"children\": [{\"pump\": {}}]}");
    write("other.json", "kept");
    EXPECT_EQ(runOn("save", {"plant.json", "-o", "other.json"}),
              (Outcome{1, "",
                       "plant.json:1:16: error: unknown element class “pump”\n"
                       "skillbench save: “plant.json” cannot be loaded; no file was written\n"}));
    EXPECT_EQ(read("plant.json"), "{\"children\": [{\"pump\": {}}]}");
    EXPECT_EQ(read("other.json"), "kept");
}

TEST_F(SkillbenchSave, DoesNotLoseWhatItLeftOut) {
    constexpr std::string_view kText =
        "{\"children\": [{\"pump\": {}}, {\"tank\": {\"name\": \"T\"}}]}";
    write("plant.json", kText);
    EXPECT_EQ(runOn("save", {"plant.json", "--keep-going"}),
              (Outcome{1, "",
                       "plant.json:1:16: error: unknown element class “pump”\n"
                       "skillbench save: what was left out of “plant.json” would be lost; write to "
                       "another file with -o\n"}));
    EXPECT_EQ(runOn("save", {"plant.json", "--keep-going", "-o", "./plant.json"}).exitCode, 1);
    EXPECT_EQ(read("plant.json"), kText);
    EXPECT_EQ(runOn("save", {"plant.json", "--keep-going", "-o", "rest.json"}),
              (Outcome{0, "saved 1 element to rest.json\n",
                       "plant.json:1:16: error: unknown element class “pump”\n"}));
    EXPECT_THAT(read("rest.json"), HasSubstr("\"name\": \"T\""));
}

TEST_F(SkillbenchSave, SaysWhyItCannotWrite) {
    write("plant.json", kTank);
    const Outcome outcome = runOn("save", {"plant.json", "-o", "missing/plant.json"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, StartsWith("skillbench save: cannot write missing/plant.json: "));
    EXPECT_THAT(runOn("save", {"plant.json", "-o", "."}).err,
                StartsWith("skillbench save: cannot write .: "));
}

} // namespace
