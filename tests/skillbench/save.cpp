#include "SkillbenchFixture.hpp"

namespace {

using corvane::skillbench::test::Outcome;
using corvane::skillbench::test::runWith;
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

/// Its skill saves a member that it does not know.
constexpr std::string_view kReadsLess =
    R"({"children": [{"trouble": {"name": "Top", "children": [
        {"trouble": {"name": "T", "where": "save", "how": "what is not read"}}]}}]})";

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

TEST_F(SkillbenchSave, WritesToTheStandardOutput) {
    write("plant.json", kTank);
    const Outcome expected{0, std::string(kSaved), "saved 1 element to the standard output\n"};
    EXPECT_EQ(runOn("save", {"plant.json", "-o", "-"}), expected);
    EXPECT_EQ(runWith({"save", "--skill", skillLibrary(), "-"}, std::string(kTank)), expected);
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(SkillbenchSave, WritesNothingToTheStandardOutputWhenItCannotSave) {
    write("plant.json", kReadsLess);
    const Outcome outcome =
        runWith({"save", "--skill", CORVANE_TEST_TROUBLE_SKILL, "plant.json", "-o", "-"});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.out, "");
}

TEST_F(SkillbenchSave, RefusesToLoseAChangeMadeMeanwhile) {
    constexpr std::string_view kChanges =
        R"({"children": [{"trouble": {"name": "T", "where": "save", "how": "change the file"}}]})";
    write("plant.json", kChanges);
    const std::vector<std::string> command{"save", "--skill", CORVANE_TEST_TROUBLE_SKILL,
                                           "plant.json"};
    EXPECT_EQ(runWith(command),
              (Outcome{1, "",
                       "skillbench save: “plant.json” has changed since it was read; nothing was "
                       "saved (--force overwrites it)\n"}));
    EXPECT_EQ(read("plant.json"), std::string(kChanges) + ' ');

    std::vector<std::string> elsewhere = command;
    elsewhere.insert(elsewhere.end(), {"-o", "other.json"});
    EXPECT_EQ(runWith(elsewhere).exitCode, 0);

    std::vector<std::string> forced = command;
    forced.emplace_back("--force");
    EXPECT_EQ(runWith(forced), (Outcome{0, "saved 1 element to plant.json\n", ""}));
    EXPECT_THAT(read("plant.json"), HasSubstr("\"note\": \"\""));
}

TEST_F(SkillbenchSave, RefusesWhatItsSkillCouldNotLoad) {
    write("plant.json", kReadsLess);
    const std::vector<std::string> command{"save", "--skill", CORVANE_TEST_TROUBLE_SKILL,
                                           "plant.json"};
    EXPECT_EQ(runWith(command),
              (Outcome{1, "",
                       "error: the skill “troubles” failed while loading again what it has saved "
                       "of the element “Top.T”: unknown parameter \"speed\"\n"
                       "skillbench save: nothing was saved\n"}));
    EXPECT_EQ(read("plant.json"), kReadsLess);

    std::vector<std::string> unverified = command;
    unverified.emplace_back("--no-verify");
    EXPECT_EQ(runWith(unverified), (Outcome{0, "saved 2 elements to plant.json\n", ""}));
    EXPECT_THAT(read("plant.json"), HasSubstr("\"speed\": null"));
}

TEST_F(SkillbenchSave, RefusesAReadOnlyFile) {
    write("plant.json", kTank);
    using std::filesystem::perms;
    std::filesystem::permissions("plant.json",
                                 perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove);
    EXPECT_EQ(runOn("save", {"plant.json"}),
              (Outcome{1, "",
                       "skillbench save: cannot write plant.json, which is read-only: Permission "
                       "denied\n"}));
    EXPECT_EQ(read("plant.json"), kTank);
    std::filesystem::permissions("plant.json", perms::owner_write,
                                 std::filesystem::perm_options::add);
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
