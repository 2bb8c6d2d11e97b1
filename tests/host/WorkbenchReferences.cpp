#include "WorkbenchFixture.hpp"
#include <corvane/workbench/config/Context.hpp>

#include <algorithm>

namespace {

using corvane::tests::RecordingObserver;
using corvane::tests::TestPoint;
using corvane::tests::TestRow;
using corvane::tests::WorkbenchTest;
using corvane::utils::string::toUtf8;
using corvane::workbench::host::LoadResult;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
namespace bindings = corvane::workbench::bindings;
namespace host = corvane::workbench::host;
namespace model = corvane::workbench::model;
using model::internal::BasicElementReference;

/// Writes down what the property of a reference publishes.
class PropertyRecord {
public:
    PropertyRecord(std::vector<std::string>& calls, std::string name,
                   bindings::PropertyController& controller, const BasicElementReference& reference)
        : subscription_(controller.subscribe(
              reference.propertyId(),
              {.value = [&calls, name](bindings::Action,
                                       std::size_t) { calls.push_back(name + " value"); },
               .state = [&calls, name] { calls.push_back(name + " state"); },
               .visibility = {}})) {}

private:
    bindings::PropertyController::Subscription subscription_;
};

class WorkbenchReferences : public WorkbenchTest {
protected:
    /// plant.pump is what others refer to, watch refers.
    void loadPlant() {
        loadClean(R"({"children": [
{"group": {"name": "plant", "children": [
  {"point": {"name": "pump", "children": [{"point": {"name": "valve"}}]}}]}},
{"point": {"name": "watch", "target": "plant.pump", "attribute": "plant.pump.value",
           "event": "plant.pump.alarm", "task": "plant.pump.valve.reset",
           "rows": ["plant", "plant.pump.valve"]}},
{"group": {"name": "other"}}]})");
        workbench.addObserver(observer);
    }
    ~WorkbenchReferences() override { workbench.removeObserver(observer); }

    /// What a reference resolves to: the target's key, or the message.
    static std::string meaning(const BasicElementReference& reference) {
        const auto element = reference.data().element();
        return element ? element->get().primaryKey() : toUtf8(element.error());
    }
    static std::string keyOf(const BasicElementReference& reference) {
        return reference.data().primaryKey();
    }
    std::vector<std::string> watchedKeys() {
        TestPoint& watch = point("watch");
        std::vector<std::string> result = {keyOf(watch.target), keyOf(watch.attribute),
                                           keyOf(watch.event), keyOf(watch.task)};
        for (const TestRow& row : watch.list.rows) {
            result.push_back(keyOf(row.target));
        }
        return result;
    }

    RecordingObserver observer;
};

TEST_F(WorkbenchReferences, ResolveWhenTheWholeFileIsKnown) {
    loadPlant();
    TestPoint& watch = point("watch");
    EXPECT_EQ(&watch.target.element()->get(), workbench.findElement("plant.pump"));
    EXPECT_EQ(watch.attribute.attribute()->name(), "value");
    EXPECT_EQ(watch.event.event()->name(), "alarm");
    EXPECT_EQ(watch.task.task()->name(), "reset");
    EXPECT_EQ(meaning(watch.list.rows[1].target), "plant.pump.valve");
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(WorkbenchReferences, MadeByAnElementShareItsProxy) {
    loadPlant();
    const model::ElementReference reference = workbench.findElement("plant.pump")->makeReference();
    EXPECT_EQ(reference.data().proxy(), point("watch").target.data().proxy());
    EXPECT_EQ(reference.data().proxy()->referenceCount(), 4U);
}

TEST_F(WorkbenchReferences, OfEmptyKeysStayEmptyWithoutAProblem) {
    loadClean(R"({"children": [{"point": {"name": "a", "target": "", "attribute": ""}}]})");
    EXPECT_TRUE(point("a").target.data().empty());
    EXPECT_TRUE(point("a").attribute.data().empty());
}

TEST_F(WorkbenchReferences, ThatDoNotResolveAreProblemsAtTheirKeyAndDoNotStopTheLoad) {
    const LoadResult result = load(R"({"children": [
{"group": {"name": "plant", "children": [{"group": {"name": "sub"}}]}},
{"point": {"name": "a", "rows": [
  "gone",
  "plant.gone.deeper",
  "plant",
  "[gone",
  "[go]ne",
  "[]",
  ".plant",
  "plant..x",
  "plant.",
  "gone"],
  "attribute":
  "plant.speed",
  "event":
  "plant.sub",
  "task":
  "plant"
}}]})");
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(
        lines(result),
        ElementsAre(
            "test.json:4:3: error: the element “gone” does not exist",
            "test.json:5:3: error: the element “plant” does not have a child named “gone”",
            "test.json:7:3: error: “[” without “]” in key component",
            "test.json:8:3: error: closing “]” must be at the end of the key component",
            "test.json:9:3: error: an empty set of “[]” is not a valid key component",
            "test.json:10:3: error: empty top level element name",
            "test.json:11:3: error: empty child element name",
            "test.json:12:3: error: empty child element name",
            "test.json:13:3: error: the element “gone” does not exist",
            "test.json:15:3: error: the element “plant” does not have an attribute named “speed”",
            "test.json:17:3: error: missing event name",
            "test.json:19:3: error: missing task name"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 12U);
}

TEST_F(WorkbenchReferences, WithAMalformedMemberNameAreProblems) {
    const LoadResult result = load(R"({"children": [{"point": {"name": "a",
"attribute": "a.[value",
"event": "a.",
"task": "a.[]"}}]})");
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(lines(result),
                ElementsAre("test.json:2:14: error: “[” without “]” in attribute name",
                            "test.json:3:10: error: empty event name",
                            "test.json:4:9: error: an empty set of “[]” is not a valid task "
                            "name"));
}

TEST_F(WorkbenchReferences, MayHaveVeryLongKeys) {
    const std::string longName(1'000'000, 'x');
    const LoadResult result =
        load("{\"children\": [{\"point\": {\"name\": \"a\",\n\"rows\": [\n\"" + longName +
             "\",\n\"[" + longName + "\"]}}]}");
    EXPECT_TRUE(result.loaded);
    ASSERT_EQ(result.problems.size(), 2U);
    EXPECT_EQ(result.problems[0].line, 3U);
    EXPECT_EQ(result.problems[0].text, "the element “" + longName + "” does not exist");
    EXPECT_EQ(result.problems[1].line, 4U);
    EXPECT_EQ(result.problems[1].text, "“[” without “]” in key component");
    EXPECT_EQ(keyOf(point("a").list.rows[0].target), longName);
}

TEST_F(WorkbenchReferences, ToTheirOwnElementOrInACircleGiveAWarning) {
    const LoadResult result = load(R"({"children": [
{"point": {"name": "a", "target":
  "a"}},
{"point": {"name": "b", "target":
  "c"}},
{"point": {"name": "c", "attribute":
  "b.value"}}]})");
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(lines(result),
                ElementsAre("test.json:3:3: warning: the element “a” refers to itself",
                            "test.json:5:3: warning: elements refer to each other in a circle: "
                            "“b”, “c”, “b”"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(WorkbenchReferences, ToImportsStayImportsUnlessAsked) {
    constexpr std::string_view kText = R"({"children": [
        {"point": {"name": "a", "target": ".import:a", "attribute": ".import:a.value"}}]})";
    loadClean(kText);
    EXPECT_TRUE(point("a").target.data().isImportReference());
    EXPECT_TRUE(point("a").attribute.data().isImportReference());
    EXPECT_EQ(keyOf(point("a").attribute), "a.value");
    EXPECT_THAT(saved(), testing::HasSubstr("\"attribute\": \".import:a.value\""));

    const LoadResult result = load(kText, {.resolveImportReferences = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_EQ(meaning(point("a").target), "a");
    EXPECT_TRUE(point("a").attribute.attribute());
}

TEST_F(WorkbenchReferences, ToImportsWithADoubledPrefixAreSavedAsTheyWereRead) {
    constexpr std::string_view kText = R"({"children": [
        {"point": {"name": "a", "target":
".import:.import:a", "attribute":
".import:.import:a.value"}}]})";
    const LoadResult result = load(kText, {.resolveImportReferences = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(lines(result),
                ElementsAre("test.json:3:1: error: the key “.import:a” cannot be resolved: it "
                            "begins with “.import:”",
                            "test.json:4:1: error: the key “.import:a.value” cannot be resolved: "
                            "it begins with “.import:”"));
    EXPECT_EQ(keyOf(point("a").target), ".import:a");
    EXPECT_THAT(saved(), testing::HasSubstr("\"target\": \".import:.import:a\""));
    EXPECT_THAT(saved(), testing::HasSubstr("\"attribute\": \".import:.import:a.value\""));
    loadClean(kText);
}

TEST_F(WorkbenchReferences, BelowACustomElementResolveToIt) {
    loadClean(R"({"children": [{"custom": {"name": "c"}},
                               {"point": {"name": "a", "target": "c.x.y"}}]})");
    EXPECT_EQ(meaning(point("a").target), "c");
    EXPECT_EQ(keyOf(point("a").target), "c.x.y");
}

TEST_F(WorkbenchReferences, FollowARename) {
    loadPlant();
    EXPECT_TRUE(workbench.rename("plant", "factory"));
    EXPECT_THAT(watchedKeys(),
                ElementsAre("factory.pump", "factory.pump.value", "factory.pump.alarm",
                            "factory.pump.valve.reset", "factory", "factory.pump.valve"));
    EXPECT_THAT(observer.calls,
                ElementsAre("renamed plant to factory", "key factory", "key factory.pump",
                            "key factory.pump.value", "key factory.pump.alarm",
                            "key factory.pump.valve.reset", "key factory.pump.valve"));
    observer.calls.clear();
    EXPECT_TRUE(workbench.rename("factory.pump.valve", "tap"));
    EXPECT_THAT(observer.calls, ElementsAre("renamed factory.pump.valve to factory.pump.tap",
                                            "key factory.pump.tap.reset", "key factory.pump.tap"));
    observer.calls.clear();
    EXPECT_TRUE(workbench.rename("other", "another"));
    EXPECT_THAT(observer.calls, ElementsAre("renamed other to another"));
}

TEST_F(WorkbenchReferences, PublishARenameThroughTheirProperty) {
    loadPlant();
    std::vector<std::string> calls;
    TestPoint& watch = point("watch");
    const PropertyRecord target(calls, "target", watch, watch.target);
    const PropertyRecord attribute(calls, "attribute", watch, watch.attribute);
    const PropertyRecord row(calls, "row", watch.list.rows[0], watch.list.rows[0].target);
    EXPECT_TRUE(workbench.rename("plant.pump", "motor"));
    EXPECT_THAT(calls, ElementsAre("target value", "attribute value"));
    calls.clear();
    EXPECT_TRUE(workbench.rename("plant", "factory"));
    EXPECT_THAT(calls, ElementsAre("row value", "target value", "attribute value"));
}

TEST_F(WorkbenchReferences, FollowAMove) {
    loadPlant();
    EXPECT_TRUE(workbench.move("plant.pump", "other"));
    EXPECT_THAT(watchedKeys(), ElementsAre("other.pump", "other.pump.value", "other.pump.alarm",
                                           "other.pump.valve.reset", "plant", "other.pump.valve"));
    EXPECT_THAT(observer.calls, ElementsAre("moved plant.pump to other.pump", "key other.pump",
                                            "key other.pump.value", "key other.pump.alarm",
                                            "key other.pump.valve.reset", "key other.pump.valve"));
}

TEST_F(WorkbenchReferences, BecomeDanglingWhenTheirTargetIsRemovedAndWholeWhenItIsBack) {
    loadPlant();
    std::vector<std::string> calls;
    TestPoint& watch = point("watch");
    const PropertyRecord target(calls, "target", watch, watch.target);
    const PropertyRecord task(calls, "task", watch, watch.task);

    EXPECT_TRUE(workbench.remove("plant.pump"));
    EXPECT_THAT(watchedKeys(), ElementsAre("plant.pump", "plant.pump.value", "plant.pump.alarm",
                                           "plant.pump.valve.reset", "plant", "plant.pump.valve"));
    EXPECT_EQ(meaning(watch.target), "the element “plant” does not have a child named “pump”");
    EXPECT_THAT(observer.calls,
                ElementsAre("removing plant.pump", "removed plant.pump", "state plant.pump",
                            "state plant.pump.value", "state plant.pump.alarm",
                            "state plant.pump.valve.reset", "state plant.pump.valve"));
    EXPECT_THAT(calls, ElementsAre("target state", "task state"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 5U);

    observer.calls.clear();
    calls.clear();
    EXPECT_TRUE(workbench.add("plant", "point", "pump"));
    EXPECT_EQ(meaning(watch.target), "plant.pump");
    EXPECT_EQ(meaning(watch.task), "the element “plant.pump” does not have a child named “valve”");
    // Those to the valve are still dangling, for another reason.
    EXPECT_THAT(observer.calls,
                UnorderedElementsAre("added plant.pump", "state plant.pump",
                                     "state plant.pump.value", "state plant.pump.alarm",
                                     "state plant.pump.valve.reset", "state plant.pump.valve"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 2U);

    observer.calls.clear();
    EXPECT_TRUE(workbench.add("plant.pump", "point", "valve"));
    EXPECT_THAT(observer.calls,
                UnorderedElementsAre("added plant.pump.valve", "state plant.pump.valve.reset",
                                     "state plant.pump.valve"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(WorkbenchReferences, ThatWaitForANameBecomeWholeByARenameOrAMove) {
    loadClean(R"({"children": [{"group": {"name": "a", "children": [
                                  {"point": {"name": "b", "children": [{"leaf": {"name": "c"}}]}}]}},
                               {"group": {"name": "d"}}, {"point": {"name": "w"}}]})");
    TestPoint& watch = point("w");
    watch.target = workbench.elementReferenceData("x.b.c");
    watch.attribute = workbench.memberReferenceData("d.b.value");
    workbench.addObserver(observer);

    EXPECT_TRUE(workbench.rename("a", "x"));
    EXPECT_EQ(meaning(watch.target), "x.b.c");
    EXPECT_THAT(observer.calls, ElementsAre("renamed a to x", "state x.b.c"));
    observer.calls.clear();
    EXPECT_TRUE(workbench.move("x.b", "d"));
    EXPECT_TRUE(watch.attribute.attribute());
    EXPECT_THAT(observer.calls, ElementsAre("moved x.b to d.b", "key d.b.c", "state d.b.value"));
    EXPECT_EQ(keyOf(watch.target), "d.b.c");
}

TEST_F(WorkbenchReferences, ThatDangleBelowARenamedElementGetANewMessageToo) {
    loadPlant();
    TestPoint& watch = point("watch");
    watch.target = workbench.elementReferenceData("plant.pump.gone");
    watch.attribute = workbench.memberReferenceData("plant.pump.speed");
    watch.event = workbench.memberReferenceData("gone.pump.alarm");
    EXPECT_TRUE(workbench.rename("plant", "factory"));
    EXPECT_THAT(observer.calls,
                UnorderedElementsAre("renamed plant to factory", "key factory",
                                     "key factory.pump.gone", "state factory.pump.gone",
                                     "key factory.pump.speed", "state factory.pump.speed",
                                     "key factory.pump.valve.reset", "key factory.pump.valve"));
}

TEST_F(WorkbenchReferences, ToAMissingMemberHearOfAChildOfItsName) {
    loadPlant();
    TestPoint& watch = point("watch");
    watch.attribute = workbench.memberReferenceData("other.speed");
    watch.event = workbench.memberReferenceData("plant.pump.alarm");
    EXPECT_EQ(toUtf8(watch.attribute.attribute().error()),
              "the element “other” does not have an attribute named “speed”");
    EXPECT_TRUE(workbench.add("other", "leaf", "speed"));
    EXPECT_EQ(toUtf8(watch.attribute.attribute().error()), "missing attribute name");
    EXPECT_THAT(observer.calls, ElementsAre("added other.speed", "state other.speed"));
    observer.calls.clear();
    // The member that exists wins over the child.
    EXPECT_TRUE(workbench.add("plant.pump", "point", "alarm"));
    EXPECT_THAT(observer.calls, ElementsAre("added plant.pump.alarm"));
    observer.calls.clear();
    EXPECT_TRUE(workbench.rename("other.speed", "s"));
    EXPECT_THAT(observer.calls, ElementsAre("renamed other.speed to other.s", "state other.speed"));
}

TEST_F(WorkbenchReferences, LookAgainWhenMembersArePublished) {
    loadPlant();
    std::vector<std::string> calls;
    TestPoint& watch = point("watch");
    const PropertyRecord target(calls, "target", watch, watch.target);
    const PropertyRecord attribute(calls, "attribute", watch, watch.attribute);
    const PropertyRecord event(calls, "event", watch, watch.event);
    point("plant.pump").renameAttribute("level");
    EXPECT_THAT(observer.calls, ElementsAre("members of plant.pump"));
    EXPECT_THAT(calls, ElementsAre("attribute state"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    point("plant.pump").renameAttribute("value");
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
}

TEST_F(WorkbenchReferences, HeldByARemovedElementEndWithIt) {
    loadPlant();
    const auto proxy = point("watch").target.data().proxy();
    EXPECT_EQ(proxy->referenceCount(), 3U);
    EXPECT_TRUE(workbench.remove("watch"));
    EXPECT_EQ(proxy->referenceCount(), 0U);
    EXPECT_THAT(observer.calls, ElementsAre("removing watch", "removed watch"));
}

TEST_F(WorkbenchReferences, InsideARemovedSubtreeEndWithIt) {
    load(R"({"children": [{"point": {"name": "a", "children": [
        {"point": {"name": "b", "target": "a", "rows": ["a.b", "c"]}}]}},
        {"point": {"name": "c", "target": "a.b"}}]})");
    workbench.addObserver(observer);
    EXPECT_TRUE(workbench.remove("a"));
    EXPECT_THAT(observer.calls, ElementsAre("removing a", "removed a", "state a.b"));
    EXPECT_EQ(meaning(point("c").target), "the element “a” does not exist");
}

TEST_F(WorkbenchReferences, TheirProxyEndsWithTheLastOfThem) {
    loadPlant();
    const std::weak_ptr<model::internal::AbstractCrossReferenceProxy> proxy =
        workbench.findElement("other")->makeReference().data().proxy();
    EXPECT_TRUE(proxy.expired());
    auto reference = workbench.findElement("other")->makeReference();
    const std::weak_ptr<model::internal::AbstractCrossReferenceProxy> kept =
        reference.data().proxy();
    EXPECT_FALSE(kept.expired());
    reference = model::ElementReference();
    EXPECT_TRUE(kept.expired());
}

TEST_F(WorkbenchReferences, OutsideTheTreeSurviveAnotherLoadByTheirKeys) {
    loadPlant();
    const model::ElementReference pump = workbench.findElement("plant.pump")->makeReference();
    const model::ElementReference other = workbench.findElement("other")->makeReference();
    loadClean(R"({"children": [{"group": {"name": "plant", "children": [
                                  {"point": {"name": "pump"}}]}}]})");
    EXPECT_EQ(&pump.element()->get(), workbench.findElement("plant.pump"));
    EXPECT_EQ(meaning(other), "the element “other” does not exist");
    EXPECT_EQ(keyOf(other), "other");
    EXPECT_THAT(observer.calls,
                ElementsAre("unloading", "loaded", "state plant.pump", "state other"));
}

TEST_F(WorkbenchReferences, ToTheRootSurviveAnotherLoad) {
    loadPlant();
    model::ElementReference reference;
    reference = workbench.elementReferenceData("gone");
    loadClean(R"({"children": [{"leaf": {"name": "gone"}}]})");
    EXPECT_EQ(meaning(reference), "gone");
}

TEST_F(WorkbenchReferences, MayOutliveTheWorkbench) {
    model::ElementReference reference;
    {
        host::Workbench shortLived;
        ASSERT_TRUE(shortLived.addSkill(corvane::tests::testSkill()));
        ASSERT_TRUE(shortLived.add("", "group", "a"));
        ASSERT_TRUE(shortLived.add("a", "leaf", "b"));
        reference = shortLived.findElement("a.b")->makeReference();
    }
    EXPECT_EQ(meaning(reference), "the element “a.b” does not exist");
    EXPECT_EQ(keyOf(reference), "a.b");
}

TEST_F(WorkbenchReferences, StayRegisteredWhenTheRowsThatHoldThemMove) {
    loadPlant();
    TestPoint& watch = point("watch");
    watch.list.change([](std::vector<TestRow>& rows) {
        rows.clear();
        rows.shrink_to_fit();
    });
    const auto expectRegistered = [&](const char* when) {
        const auto uses = workbench.referencesTo(*workbench.findElement("other"));
        std::vector<const BasicElementReference*> registered;
        for (const auto& use : uses) {
            registered.push_back(use.reference);
        }
        std::vector<const BasicElementReference*> expected;
        for (const TestRow& row : watch.list.rows) {
            if (keyOf(row.target) == "other") {
                expected.push_back(&row.target);
            }
        }
        EXPECT_THAT(registered, testing::UnorderedElementsAreArray(expected)) << when;
    };
    watch.list.change([&](std::vector<TestRow>& rows) {
        for (int count = 0; count < 50; ++count) {
            rows.emplace_back().target =
                workbench.elementReferenceData(count % 5 == 0 ? "plant" : "other");
        }
    });
    expectRegistered("grown");
    watch.list.change(
        [](std::vector<TestRow>& rows) { rows.erase(rows.begin() + 10, rows.begin() + 25); });
    expectRegistered("erased");
    watch.list.change([](std::vector<TestRow>& rows) {
        std::sort(rows.begin(), rows.end(), [](const TestRow& left, const TestRow& right) {
            return keyOf(left.target) > keyOf(right.target);
        });
    });
    EXPECT_EQ(keyOf(watch.list.rows.front().target), "plant");
    expectRegistered("sorted");
    watch.list.change([](std::vector<TestRow>& rows) {
        std::vector<TestRow> copies = rows;
        rows.insert(rows.begin(), copies.begin(), copies.end());
    });
    expectRegistered("copied");
    EXPECT_EQ(watch.list.rows.size(), 70U);
    EXPECT_TRUE(workbench.remove("other"));
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 56U);
}

TEST_F(WorkbenchReferences, AreListedWithTheirOwners) {
    loadPlant();
    const auto uses = workbench.referencesTo(*workbench.findElement("plant.pump.valve"));
    ASSERT_EQ(uses.size(), 2U);
    EXPECT_EQ(uses[0].owner, workbench.findElement("watch"));
    EXPECT_EQ(uses[0].reference, &point("watch").task);
    EXPECT_EQ(uses[1].owner, workbench.findElement("watch"));
    EXPECT_EQ(uses[1].reference, &point("watch").list.rows[1].target);
    EXPECT_THAT(workbench.referencesTo(*workbench.findElement("other")), IsEmpty());
    const model::ElementReference outside = workbench.findElement("other")->makeReference();
    EXPECT_EQ(workbench.referencesTo(*workbench.findElement("other")).front().owner, nullptr);
}

TEST_F(WorkbenchReferences, CanBeSetThroughTheirEditableProperty) {
    loadPlant();
    TestPoint& watch = point("watch");
    std::vector<std::string> calls;
    const PropertyRecord target(calls, "target", watch, watch.target);
    const auto set = [&](std::string_view name, std::string_view key) {
        std::string result = "no such property";
        const auto visit = [&](const corvane::workbench::skill::EditableProperty& property) {
            if (property.name == name) {
                result = textOf(workbench.setReference(property, key));
            }
        };
        watch.forEachEditableProperty(visit);
        return result;
    };
    EXPECT_EQ(set("target", "other"), "success");
    EXPECT_EQ(meaning(watch.target), "other");
    EXPECT_THAT(calls, ElementsAre("target value"));
    EXPECT_EQ(set("target", "gone"), "success");
    EXPECT_THAT(calls, ElementsAre("target value", "target value", "target state"));
    EXPECT_EQ(set("attribute", "plant.pump.valve.value"), "success");
    EXPECT_TRUE(watch.attribute.attribute());
    EXPECT_EQ(set("task", ""), "success");
    EXPECT_FALSE(watch.task);
    EXPECT_EQ(set("event", ".import:x.y"), "success");
    EXPECT_TRUE(watch.event.data().isImportReference());
    EXPECT_EQ(set("limit", "other"), "the property “limit” is not a reference");
}

/// Does something to the reference of a point while it is told of another one.
class Saboteur final : public host::Observer {
public:
    explicit Saboteur(std::function<void()> action) : action_(std::move(action)) {}
    void referenceStateChanged(const BasicElementReference&) override {
        if (action_) {
            std::exchange(action_, nullptr)();
        }
    }

private:
    std::function<void()> action_;
};

TEST_F(WorkbenchReferences, ThatEndDuringTheAnnouncementDropOut) {
    loadPlant();
    TestPoint& watch = point("watch");
    Saboteur saboteur([&] {
        watch.attribute = model::AttributeReference();
        watch.list.change([](std::vector<TestRow>& rows) {
            rows.clear();
            rows.shrink_to_fit();
        });
    });
    workbench.removeObserver(observer);
    workbench.addObserver(saboteur);
    workbench.addObserver(observer);
    EXPECT_TRUE(workbench.remove("plant.pump"));
    workbench.removeObserver(saboteur);
    EXPECT_THAT(observer.calls,
                ElementsAre("removing plant.pump", "removed plant.pump", "state plant.pump",
                            "state plant.pump.alarm", "state plant.pump.valve.reset"));
}

TEST_F(WorkbenchReferences, AreAllAnnouncedWhenACallbackThrows) {
    loadPlant();
    Saboteur saboteur([] { throw std::runtime_error("sabotage"); });
    workbench.addObserver(saboteur);
    EXPECT_THROW(static_cast<void>(workbench.remove("plant.pump")), std::runtime_error);
    workbench.removeObserver(saboteur);
    EXPECT_EQ(observer.calls.size(), 7U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 5U);
}

TEST_F(WorkbenchReferences, OfASkippedElementAreNotResolved) {
    const LoadResult result = load(R"({"children": [
{"point": {"name": "a", "target": "b"}},
{"point": {"name": "x", "target": "b", "rows": ["b", "nowhere"],
           "children": [{"point": {"name": "y", "target": "b"}}], "speed": 1}},
{"point": {"name": "b", "target": "x"}}]})",
                                   {.keepGoing = true});
    EXPECT_TRUE(result.loaded);
    EXPECT_THAT(lines(result),
                ElementsAre("test.json:4:67: error: unknown parameter \"speed\"",
                            "test.json:5:35: error: the element “x” does not exist"));
    EXPECT_EQ(workbench.referencesTo(*workbench.findElement("b")).size(), 1U);
}

} // namespace
