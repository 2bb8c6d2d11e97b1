#include "WorkbenchFixture.hpp"

#include <stdexcept>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::tests::WorkbenchTest;
using corvane::workbench::host::LoadOptions;
using corvane::workbench::host::LoadProgress;
using corvane::workbench::host::LoadResult;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kBefore = R"({"children": [{"group": {"name": "before"}}]})";

class WorkbenchLoad : public WorkbenchTest {
protected:
    /// Loads a text that must be refused, with the tree left as it was.
    std::vector<std::string> refused(std::string_view text) {
        loadClean(kBefore);
        const std::string savedBefore = saved();
        const auto* before = workbench.findElement("before");
        const LoadResult result = load(text);
        EXPECT_FALSE(result.loaded);
        EXPECT_EQ(workbench.findElement("before"), before);
        EXPECT_EQ(saved(), savedBefore);
        EXPECT_EQ(workbench.elementCount(), 1U);
        return lines(result);
    }
    /// The same for the settings of an element at line 2.
    std::vector<std::string> refusedElement(std::string_view classId, std::string_view members) {
        return refused("{\"children\": [\n  {\"" + std::string(classId) + "\": {" +
                       std::string(members) + "}}\n]}");
    }
};

TEST_F(WorkbenchLoad, ReplacesTheTree) {
    loadClean(kBefore);
    loadClean(R"({"children": [{"group": {"name": "a"}}, {"group": {"name": "b"}}]})");
    EXPECT_THAT(keys(), ElementsAre("a", "b"));
}

TEST_F(WorkbenchLoad, AcceptsAConfigurationWithoutElements) {
    loadClean(kBefore);
    loadClean(R"({"children": []})");
    EXPECT_THAT(keys(), IsEmpty());
}

TEST_F(WorkbenchLoad, AcceptsReservedMembersInAnyOrder) {
    loadClean(R"({"children": [{"point": {"limit": 3,
        "children": [{"point": {"target": "a", "name": "b"}}],
        "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad2", "name": "a"}}]})");
    EXPECT_THAT(keys(), ElementsAre("a", "a.b"));
    EXPECT_EQ(point("a").limit, 3);
    EXPECT_EQ(workbench.findElement("a")->uuid().toString(),
              "7d444840-9dc0-11d1-b245-5ffdce74fad2");
    EXPECT_TRUE(point("a.b").target.element());
}

TEST_F(WorkbenchLoad, GivesElementsWithoutUuidOneOfTheirOwn) {
    loadClean(R"({"children": [{"group": {"name": "a"}}, {"group": {"name": "b"}}]})");
    EXPECT_FALSE(workbench.findElement("a")->uuid().isNil());
    EXPECT_NE(workbench.findElement("a")->uuid(), workbench.findElement("b")->uuid());
}

TEST_F(WorkbenchLoad, KeepsTheRootAndItsSubscriptions) {
    int changes = 0;
    const auto* root = &workbench.root();
    const auto subscription =
        workbench.root().properties().subscribeToPropertyErrorCount([&] { ++changes; });
    loadClean(R"({"children": [{"point": {"name": "a", "limit": 101}},
                               {"point": {"name": "b", "limit": 102}}]})");
    EXPECT_EQ(&workbench.root(), root);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 2U);
    EXPECT_EQ(changes, 1);
    loadClean(kBefore);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
    EXPECT_EQ(changes, 2);
}

TEST_F(WorkbenchLoad, RefusesWhatIsNoJson) {
    EXPECT_THAT(refused(""),
                ElementsAre(testing::StartsWith("test.json:1:1: error: JSON syntax error: ")));
    EXPECT_THAT(refused(" \n\n \n"), ElementsAre(testing::StartsWith("test.json:")));
    EXPECT_THAT(refused("{\"children\": [\n{\"group\": {\"name\": \"a\"}},\n"),
                ElementsAre(testing::StartsWith("test.json:3:")));
    EXPECT_THAT(refused("{\"children\": []}\n{}"),
                ElementsAre(testing::StartsWith("test.json:2:1: error: JSON syntax error: ")));
}

TEST_F(WorkbenchLoad, RefusesInvalidUtf8WithItsLine) {
    EXPECT_THAT(refusedElement("group", "\"name\": \"\xC3\""),
                ElementsAre(testing::StartsWith("test.json:2:")));
}

TEST_F(WorkbenchLoad, RefusesMoreThan512Levels) {
    const std::string deep =
        "{\"children\":\n" + std::string(512, '[') + std::string(512, ']') + "}";
    EXPECT_THAT(refused(deep), ElementsAre(testing::StartsWith("test.json:2:512: error: ")));
}

TEST_F(WorkbenchLoad, RefusesAnotherRoot) {
    EXPECT_THAT(refused("[]"),
                ElementsAre("test.json:1:1: error: expected an object, found an array"));
    EXPECT_THAT(refused("5"),
                ElementsAre("test.json:1:1: error: expected an object, found a number"));
    EXPECT_THAT(refused("{}"), ElementsAre("test.json:1:1: error: the configuration has no member "
                                           "\"children\""));
    EXPECT_THAT(refused("{\"children\": [],\n\"version\": 1}"),
                ElementsAre("test.json:2:1: error: unknown parameter \"version\""));
    EXPECT_THAT(refused("{\"children\": [],\n\"children\": []}"),
                ElementsAre("test.json:2:1: error: duplicate member \"children\" in JSON object"));
    EXPECT_THAT(refused("{\"children\": 5}"),
                ElementsAre("test.json:1:14: error: expected an array, found a number"));
}

TEST_F(WorkbenchLoad, RefusesAChildThatIsNotOneElement) {
    EXPECT_THAT(refused("{\"children\": [\n  5]}"),
                ElementsAre("test.json:2:3: error: expected an object, found a number"));
    EXPECT_THAT(refused("{\"children\": [\n  {}]}"),
                ElementsAre("test.json:2:3: error: an element must be an object with one member, "
                            "named after the element's class; this one has 0"));
    EXPECT_THAT(refused("{\"children\": [\n  {\"group\": {\"name\": \"a\"}, \"leaf\": {}}]}"),
                ElementsAre("test.json:2:3: error: an element must be an object with one member, "
                            "named after the element's class; this one has 2"));
    EXPECT_THAT(refused("{\"children\": [\n  {\"group\": []}]}"),
                ElementsAre("test.json:2:13: error: expected an object, found an array"));
}

TEST_F(WorkbenchLoad, RefusesAnUnknownElementClass) {
    EXPECT_THAT(refusedElement("pump", R"("name": "a")"),
                ElementsAre("test.json:2:4: error: unknown element class “pump”"));
}

TEST_F(WorkbenchLoad, RefusesAChildThatItsParentDoesNotAccept) {
    EXPECT_THAT(refusedElement("leaf", "\"name\": \"a\", \"children\": [\n{\"group\": {}}]"),
                ElementsAre("test.json:3:2: error: an element of the class “leaf” does not accept "
                            "children of the class “group”"));
}

TEST_F(WorkbenchLoad, RefusesNamesThatAreMissingMalformedOrTaken) {
    EXPECT_THAT(refusedElement("group", ""),
                ElementsAre("test.json:2:4: error: the element has no member \"name\""));
    EXPECT_THAT(refusedElement("group", R"("name": "")"),
                ElementsAre("test.json:2:22: error: an element name must not be empty"));
    EXPECT_THAT(refusedElement("group", R"("name": "a.b")"),
                ElementsAre("test.json:2:22: error: the element name “a.b” contains “.” and must "
                            "be enclosed in brackets"));
    EXPECT_THAT(refusedElement("group", R"("name": 5)"),
                ElementsAre("test.json:2:22: error: expected a string, found a number"));
    EXPECT_THAT(
        refused("{\"children\": [{\"group\": {\"name\": \"a\"}},\n{\"leaf\": {\"name\": \"a\"}}]}"),
        ElementsAre("test.json:2:19: error: there is already a top-level element named “a”"));
    EXPECT_THAT(refusedElement("group", "\"name\": \"p\", \"children\": [{\"leaf\": {\"name\": "
                                        "\"a\"}},\n{\"leaf\": {\"name\": \"a\"}}]"),
                ElementsAre("test.json:3:19: error: the element “p” already has a child named "
                            "“a”"));
}

TEST_F(WorkbenchLoad, RefusesUuidsThatAreMalformedNilOrTaken) {
    EXPECT_THAT(refusedElement("group", R"("name": "a", "UUID": "12")"),
                ElementsAre("test.json:2:35: error: “12” is not a UUID"));
    EXPECT_THAT(
        refusedElement("group", R"("name": "a", "UUID": "00000000-0000-0000-0000-000000000000")"),
        ElementsAre("test.json:2:35: error: the nil UUID identifies no element"));
    EXPECT_THAT(
        refusedElement("group", "\"name\": \"a\", \"UUID\": "
                                "\"7d444840-9dc0-11d1-b245-5ffdce74fad2\", \"children\": "
                                "[{\"leaf\": {\"name\": \"b\",\n\"UUID\": "
                                "\"7D444840-9DC0-11D1-B245-5FFDCE74FAD2\"}}]"),
        ElementsAre("test.json:3:9: error: the UUID 7d444840-9dc0-11d1-b245-5ffdce74fad2 belongs "
                    "to another element already"));
}

TEST_F(WorkbenchLoad, RefusesMembersThatNobodyKnows) {
    EXPECT_THAT(refusedElement("group", "\"name\": \"a\",\n\"speed\": 1"),
                ElementsAre("test.json:3:1: error: unknown parameter \"speed\""));
    EXPECT_THAT(refusedElement("point", "\"name\": \"a\",\n\"speed\": 1"),
                ElementsAre("test.json:3:1: error: unknown parameter \"speed\""));
}

TEST_F(WorkbenchLoad, RefusesAMemberThatComesTwice) {
    for (const std::string member :
         {"\"name\": \"a\"", "\"UUID\": \"7d444840-9dc0-11d1-b245-5ffdce74fad2\"", "\"ACL\": 1",
          "\"children\": []", "\"limit\": 1"}) {
        const std::string name = member.substr(0, member.find(':'));
        const std::string other = member.starts_with("\"name\"") ? "" : "\"name\": \"a\", ";
        EXPECT_THAT(
            refusedElement("point", other + member + ",\n" + member),
            ElementsAre("test.json:3:1: error: duplicate member " + name + " in JSON object"));
    }
}

TEST_F(WorkbenchLoad, RefusesSettingsOfTheWrongTypeOrRange) {
    EXPECT_THAT(refusedElement("point", "\"name\": \"a\",\n\"limit\": \"7\""),
                ElementsAre("test.json:3:10: error: expected a number, found a string"));
    EXPECT_THAT(refusedElement("point", "\"name\": \"a\",\n\"limit\": 1e30"),
                ElementsAre(testing::StartsWith("test.json:3:10: error: the number ")));
    EXPECT_THAT(refusedElement("point", "\"name\": \"a\",\n\"target\": 5"),
                ElementsAre("test.json:3:11: error: expected a string, found a number"));
}

TEST_F(WorkbenchLoad, LocatesAPlainExceptionOfASkillAtItsElement) {
    EXPECT_THAT(refusedElement("point", R"("name": "a", "fail": "out of order")"),
                ElementsAre("test.json:2:3: error: out of order"));
}

TEST_F(WorkbenchLoad, RefusesAnElementThatCannotDescribeItsProperties) {
    EXPECT_THAT(refusedElement("point", R"("name": "a", "failLater": "no idea")"),
                ElementsAre("test.json:2:4: error: the element “a” cannot describe its "
                            "properties: no idea"));
}

TEST_F(WorkbenchLoad, StopsAtTheFirstProblem) {
    EXPECT_THAT(refused("{\"children\": [\n{\"pump\": {}},\n{\"pump\": {}}]}"),
                ElementsAre("test.json:2:2: error: unknown element class “pump”"));
}

TEST_F(WorkbenchLoad, KeepsGoingWhenAskedAndLeavesOutWhatIsWrong) {
    const LoadResult result = load(R"({"children": [
{"group": {"name": "a", "children": [
  {"pump": {"name": "x"}},
  {"point": {"name": "b", "limit": "7", "children": [{"point": {"name": "inner", "target": "a"}}],
             "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad2"}},
  {"point": {"name": "c", "limit": 8, "UUID": "7d444840-9dc0-11d1-b245-5ffdce74fad2"}}
]}},
{"leaf": {"name": "a"}},
5,
{"group": {"name": "d", "children": 7}},
{"point": {"name": "e", "target": "a.b"}}
]})",
                                   {.keepGoing = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(keys(), ElementsAre("a", "a.c", "e"));
    EXPECT_EQ(point("a.c").limit, 8);
    EXPECT_THAT(
        lines(result),
        ElementsAre("test.json:3:4: error: unknown element class “pump”",
                    "test.json:4:36: error: expected a number, found a string",
                    "test.json:8:19: error: there is already a top-level element named “a”",
                    "test.json:9:1: error: expected an object, found a number",
                    "test.json:10:37: error: expected an array, found a number",
                    "test.json:11:35: error: the element “a” does not have a child named “b”"));
}

TEST_F(WorkbenchLoad, KeepsGoingBehindAFailedDescriptionOfProperties) {
    const LoadResult result = load(R"({"children": [
{"point": {"name": "a", "failLater": "no idea"}},
{"point": {"name": "b", "limit": 200}}]})",
                                   {.keepGoing = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
}

TEST_F(WorkbenchLoad, DoesNotKeepGoingBehindASyntaxError) {
    EXPECT_FALSE(load("{\"children\": [}", {.keepGoing = true}).loaded);
}

TEST_F(WorkbenchLoad, NestsElementsAsDeepAsJsonNests) {
    // An element takes three levels; the root object takes one.
    const auto nested = [](int depth) {
        std::string text = "{";
        for (int level = 0; level < depth; ++level) {
            text += "\"children\":[{\"group\":{\"name\":\"n\"";
            text += ",";
        }
        text += "\"children\":[]";
        for (int level = 0; level < depth; ++level) {
            text += "}}]";
        }
        return text + "}";
    };
    loadClean(nested(170));
    EXPECT_EQ(workbench.elementCount(), 170U);
    loadClean(saved());
    EXPECT_FALSE(load(nested(171)).loaded);
    EXPECT_EQ(workbench.elementCount(), 170U);
}

TEST_F(WorkbenchLoad, ReadsFiles) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.json", kBefore);
    EXPECT_TRUE(workbench.loadConfiguration(file));
    EXPECT_THAT(keys(), ElementsAre("before"));
    const auto wrong = folder.write("b.json", "{\n5}");
    const LoadResult result = workbench.loadConfiguration(wrong);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(result.problems.front().file, wrong);
    EXPECT_EQ(result.problems.front().line, 2U);
    EXPECT_EQ(TemporaryFolder::read(wrong), "{\n5}");
}

TEST_F(WorkbenchLoad, SaysThatAFileCannotBeRead) {
    const TemporaryFolder folder;
    const auto missing = folder.path() / "missing.json";
    const LoadResult result = workbench.loadConfiguration(missing);
    EXPECT_FALSE(result.loaded);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_THAT(toString(result.problems.front()),
                testing::StartsWith("error: cannot open " + missing.string() + ": "));
    EXPECT_FALSE(workbench.loadConfiguration(folder.path()).loaded);
}

TEST_F(WorkbenchLoad, RefusesAnEnormousFileWithItsLine) {
    const TemporaryFolder folder;
    std::string text = "{\"children\": [";
    std::string line(9'999, ' ');
    line += '\n';
    while (text.size() < 100'000'000) {
        text += line;
    }
    text += "5]}";
    const LoadResult result = workbench.loadConfiguration(folder.write("a.json", text));
    EXPECT_FALSE(result.loaded);
    ASSERT_EQ(result.problems.size(), 1U);
    EXPECT_EQ(result.problems.front().line, 10'001U);
    EXPECT_EQ(result.problems.front().column, 1U);
    EXPECT_EQ(result.problems.front().text, "expected an object, found a number");
}

#ifndef _WIN32
TEST_F(WorkbenchLoad, ReadsAFileThatIsRemovedWhileOpen) {
    const TemporaryFolder folder;
    const auto file =
        folder.write("a.json", "{\"children\": [{\"group\": {\"name\": \"before\"}}]" +
                                   std::string(300'000, ' ') + "}");
    const LoadOptions options{.progress = [&](const LoadProgress& progress) {
        if (progress.stage == LoadProgress::Stage::Reading && progress.done > 0) {
            std::filesystem::remove(file);
        }
        return true;
    }};
    EXPECT_TRUE(workbench.loadConfiguration(file, options));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_THAT(keys(), ElementsAre("before"));
}
#endif

/// Fails in the middle, as a disk does.
class FailingStream final : public corvane::utils::io::InputStream<char> {
public:
    [[nodiscard]] std::string description() const override { return "failing"; }

private:
    bool refill() override {
        if (refilled_) {
            throw std::system_error(std::make_error_code(std::errc::io_error),
                                    "cannot read failing");
        }
        refilled_ = true;
        setBuffer(R"({"children": [)");
        return true;
    }
    bool refilled_ = false;
};

TEST_F(WorkbenchLoad, LeavesTheTreeWhenReadingFails) {
    loadClean(kBefore);
    FailingStream stream;
    const LoadResult result = workbench.loadConfiguration(stream, "f.json");
    EXPECT_FALSE(result.loaded);
    EXPECT_THAT(lines(result), ElementsAre(testing::StartsWith("error: cannot read failing")));
    EXPECT_THAT(keys(), ElementsAre("before"));
}

TEST_F(WorkbenchLoad, ReportsItsProgress) {
    const TemporaryFolder folder;
    std::string text = "{\"children\": [";
    for (int number = 0; number < 2500; ++number) {
        text += "{\"point\": {\"target\": \"n0\", \"name\": \"n" + std::to_string(number) + "\"}},";
    }
    text.back() = ']';
    text += '}';
    const auto file = folder.write("a.json", text);
    std::vector<LoadProgress> reports;
    ASSERT_TRUE(workbench.loadConfiguration(file, {.progress = [&](const LoadProgress& progress) {
                                                reports.push_back(progress);
                                                return true;
                                            }}));
    using Stage = LoadProgress::Stage;
    for (const auto& [stage, total] :
         {std::pair(Stage::Reading, text.size()), std::pair(Stage::Elements, std::size_t{2500}),
          std::pair(Stage::References, std::size_t{2500}),
          std::pair(Stage::Properties, std::size_t{2501})}) {
        std::vector<std::uint64_t> done;
        for (const LoadProgress& report : reports) {
            if (report.stage == stage) {
                done.push_back(report.done);
            }
        }
        ASSERT_FALSE(done.empty());
        EXPECT_EQ(done.front(), 0U);
        EXPECT_EQ(done.back(), total);
        EXPECT_TRUE(std::is_sorted(done.begin(), done.end()));
        EXPECT_LE(done.size(), 105U);
    }
    EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end(),
                               [](const auto& a, const auto& b) { return a.stage < b.stage; }));
}

TEST_F(WorkbenchLoad, CanBeGivenUpInEveryStage) {
    const TemporaryFolder folder;
    const auto file =
        folder.write("a.json", R"({"children": [{"point": {"name": "a", "target": "a.b"}}]})");
    loadClean(kBefore);
    using Stage = LoadProgress::Stage;
    for (const Stage stage :
         {Stage::Reading, Stage::Elements, Stage::References, Stage::Properties}) {
        const LoadResult result = workbench.loadConfiguration(
            file,
            {.progress = [&](const LoadProgress& progress) { return progress.stage != stage; }});
        EXPECT_FALSE(result.loaded);
        ASSERT_FALSE(result.problems.empty());
        EXPECT_EQ(result.problems.front().text, "the load was given up");
        EXPECT_THAT(keys(), ElementsAre("before"));
    }
}

TEST_F(WorkbenchLoad, TellsObserversBeforeAndAfter) {
    loadClean(kBefore);
    corvane::tests::RecordingObserver observer;
    workbench.addObserver(observer);
    loadClean(kBefore);
    EXPECT_THAT(observer.calls, ElementsAre("unloading", "loaded"));
    EXPECT_FALSE(load("{}").loaded);
    EXPECT_THAT(observer.calls, ElementsAre("unloading", "loaded"));
    workbench.removeObserver(observer);
    loadClean(kBefore);
    EXPECT_EQ(observer.calls.size(), 2U);
}

} // namespace
