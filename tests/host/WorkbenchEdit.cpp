#include "WorkbenchFixture.hpp"

#include <stdexcept>

namespace {

using corvane::tests::RecordingObserver;
using corvane::tests::WorkbenchTest;
using corvane::workbench::host::ElementNode;
using testing::ElementsAre;

class WorkbenchEdit : public WorkbenchTest {
protected:
    WorkbenchEdit() {
        loadClean(R"({"children": [
            {"group": {"name": "a", "children": [
                {"point": {"name": "b", "limit": 200, "children": [{"leaf": {"name": "c"}}]}}]}},
            {"group": {"name": "d"}},
            {"leaf": {"name": "e"}}]})");
        workbench.addObserver(observer);
    }
    ~WorkbenchEdit() override { workbench.removeObserver(observer); }

    /// Expects that the edit is refused for that reason and that nothing has changed.
    template <class Edit>
    void expectRefused(Edit&& edit, std::string_view reason) {
        const std::string before = saved();
        EXPECT_EQ(textOf(edit()), reason);
        EXPECT_EQ(saved(), before);
        EXPECT_THAT(observer.calls, testing::IsEmpty());
        EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    }

    RecordingObserver observer;
};

TEST_F(WorkbenchEdit, AddsAnElementWithItsInitialSettingsAtTheEnd) {
    const auto added = workbench.add("a", "point", "new");
    ASSERT_TRUE(added);
    EXPECT_EQ((*added)->primaryKey(), "a.new");
    EXPECT_FALSE((*added)->uuid().isNil());
    EXPECT_EQ(workbench.findElement((*added)->uuid()), *added);
    EXPECT_EQ(point("a.new").limit, 50);
    EXPECT_EQ((*added)->line(), 0U);
    EXPECT_THAT(keys(), ElementsAre("a", "a.b", "a.b.c", "a.new", "d", "e"));
    EXPECT_THAT(observer.calls, ElementsAre("added a.new"));
}

TEST_F(WorkbenchEdit, AddsUnderTheDefaultNameMadeUnique) {
    EXPECT_EQ((*workbench.add("d", "leaf"))->name(), "leaf");
    EXPECT_EQ((*workbench.add("d", "leaf"))->name(), "leaf 2");
    EXPECT_EQ((*workbench.add("d", "leaf"))->name(), "leaf 3");
    EXPECT_EQ((*workbench.add("", "leaf"))->name(), "leaf");
}

TEST_F(WorkbenchEdit, RefusesToAddWhatMayNotBeThere) {
    expectRefused([&] { return workbench.add("x", "leaf"); }, "there is no element “x”");
    expectRefused([&] { return workbench.add("a", "pump"); }, "unknown element class “pump”");
    expectRefused([&] { return workbench.add("e", "leaf"); },
                  "an element of the class “leaf” does not accept children of the class “leaf”");
    expectRefused([&] { return workbench.add("a", "leaf", "b"); },
                  "the element “a” already has a child named “b”");
    expectRefused([&] { return workbench.add("", "leaf", "a"); },
                  "there is already a top-level element named “a”");
    expectRefused([&] { return workbench.add("a", "leaf", "[]"); },
                  "an empty set of “[]” is not a valid element name");
}

TEST_F(WorkbenchEdit, LeavesNothingBehindWhenASkillThrows) {
    const std::string before = saved();
    corvane::tests::TestPoint::defaultFailure = "no default";
    EXPECT_THROW(static_cast<void>(workbench.add("a", "point", "new")), std::runtime_error);
    EXPECT_EQ(saved(), before);
    EXPECT_EQ(workbench.elementCount(), 5U);
    EXPECT_THAT(observer.calls, testing::IsEmpty());
    EXPECT_TRUE(workbench.add("a", "point", "new"));
}

TEST_F(WorkbenchEdit, Renames) {
    EXPECT_TRUE(workbench.rename("a", "[new.name]"));
    EXPECT_THAT(keys(), ElementsAre("[new.name]", "[new.name].b", "[new.name].b.c", "d", "e"));
    EXPECT_THAT(observer.calls, ElementsAre("renamed a to [new.name]"));
    EXPECT_TRUE(workbench.rename("[new.name]", "a"));
    EXPECT_NE(workbench.findElement("a.b.c"), nullptr);
}

TEST_F(WorkbenchEdit, RenamingToTheSameNameChangesNothing) {
    EXPECT_TRUE(workbench.rename("a", "a"));
    EXPECT_THAT(observer.calls, testing::IsEmpty());
}

TEST_F(WorkbenchEdit, RefusesToRename) {
    expectRefused([&] { return workbench.rename("x", "y"); }, "there is no element “x”");
    expectRefused([&] { return workbench.rename("", "y"); }, "the root has no name");
    expectRefused([&] { return workbench.rename("a", "d"); },
                  "there is already a top-level element named “d”");
    expectRefused([&] { return workbench.rename("a", "x.y"); },
                  "the element name “x.y” contains “.” and must be enclosed in brackets");
    expectRefused([&] { return workbench.rename("a", ""); }, "an element name must not be empty");
}

TEST_F(WorkbenchEdit, MovesWithEverythingBelowToTheEnd) {
    EXPECT_EQ(workbench.findElement("a")->properties().propertyErrorCount(), 1U);
    EXPECT_TRUE(workbench.add("d", "leaf", "first"));
    observer.calls.clear();
    EXPECT_TRUE(workbench.move("a.b", "d"));
    EXPECT_THAT(keys(), ElementsAre("a", "d", "d.first", "d.b", "d.b.c", "e"));
    EXPECT_THAT(observer.calls, ElementsAre("moved a.b to d.b"));
    EXPECT_EQ(workbench.findElement("a")->properties().propertyErrorCount(), 0U);
    EXPECT_EQ(workbench.findElement("d")->properties().propertyErrorCount(), 1U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 1U);
    EXPECT_TRUE(workbench.move("d.b", ""));
    EXPECT_THAT(keys(), ElementsAre("a", "d", "d.first", "e", "b", "b.c"));
}

TEST_F(WorkbenchEdit, MovingToTheSameParentChangesNothing) {
    EXPECT_TRUE(workbench.move("a.b", "a"));
    EXPECT_THAT(observer.calls, testing::IsEmpty());
}

TEST_F(WorkbenchEdit, RefusesToMove) {
    expectRefused([&] { return workbench.move("x", "a"); }, "there is no element “x”");
    expectRefused([&] { return workbench.move("a", "x"); }, "there is no element “x”");
    expectRefused([&] { return workbench.move("", "a"); }, "the root cannot be moved");
    expectRefused([&] { return workbench.move("a", "a"); },
                  "the element “a” cannot be moved into itself");
    expectRefused([&] { return workbench.move("a", "a.b"); },
                  "the element “a” cannot be moved into itself");
    expectRefused([&] { return workbench.move("a", "e"); },
                  "an element of the class “leaf” does not accept children of the class “group”");
    EXPECT_TRUE(workbench.add("", "point", "b"));
    observer.calls.clear();
    expectRefused([&] { return workbench.move("a.b", ""); },
                  "there is already a top-level element named “b”");
}

TEST_F(WorkbenchEdit, RemovesWithEverythingBelow) {
    const auto uuid = workbench.findElement("a.b.c")->uuid();
    EXPECT_TRUE(workbench.remove("a.b"));
    EXPECT_THAT(keys(), ElementsAre("a", "d", "e"));
    EXPECT_THAT(observer.calls, ElementsAre("removing a.b", "removed a.b"));
    EXPECT_EQ(workbench.findElement(uuid), nullptr);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 0U);
    EXPECT_EQ(workbench.elementCount(), 3U);
}

TEST_F(WorkbenchEdit, RefusesToRemove) {
    expectRefused([&] { return workbench.remove("x"); }, "there is no element “x”");
    expectRefused([&] { return workbench.remove(""); }, "the root cannot be removed");
}

TEST_F(WorkbenchEdit, RefusesToNestDeeperThanAFileCanHold) {
    std::string key;
    for (int level = 1; level <= 160; ++level) {
        const auto added = workbench.add(key, "group", "n");
        ASSERT_TRUE(added) << level;
        key = (*added)->primaryKey();
    }
    EXPECT_EQ(textOf(workbench.add(key, "group", "n")),
              "an element cannot be more than 160 levels below the root: a configuration file "
              "could not hold it");
    // Two levels move below the one but last.
    EXPECT_EQ(textOf(workbench.move("a.b", key.substr(0, key.size() - 2))),
              "an element cannot be more than 160 levels below the root: a configuration file "
              "could not hold it");
    EXPECT_TRUE(workbench.move("a.b", key.substr(0, key.size() - 4)));
    loadClean(saved());
}

/// Tries to edit while it is told of an edit.
class Meddler final : public corvane::workbench::host::Observer {
public:
    explicit Meddler(WorkbenchEdit&, corvane::workbench::host::Workbench& workbench)
        : workbench_(workbench) {}

    void elementAdded(const ElementNode&) override {
        reasons = {workbench_.add("", "leaf").error().text,
                   workbench_.rename("a", "x").error().text,
                   workbench_.move("a.b", "").error().text, workbench_.remove("a").error().text,
                   workbench_.loadConfiguration("a.json").problems.front().text};
    }

    std::vector<std::string> reasons;

private:
    corvane::workbench::host::Workbench& workbench_;
};

TEST_F(WorkbenchEdit, IsRefusedWhileAnotherOneIsAnnounced) {
    Meddler meddler(*this, workbench);
    workbench.addObserver(meddler);
    EXPECT_TRUE(workbench.add("", "leaf", "new"));
    workbench.removeObserver(meddler);
    EXPECT_THAT(meddler.reasons,
                testing::Each("the tree cannot be edited while another edit is being announced"));
    EXPECT_THAT(meddler.reasons, testing::SizeIs(5));
    EXPECT_TRUE(workbench.remove("new"));
}

class Thrower final : public corvane::workbench::host::Observer {
public:
    void elementRemoving(const ElementNode&) override { throw std::runtime_error("first"); }
    void elementRemoved(std::string_view) override { throw std::runtime_error("second"); }
};

TEST_F(WorkbenchEdit, IsCompleteWhenAnObserverThrows) {
    workbench.removeObserver(observer);
    Thrower thrower;
    workbench.addObserver(thrower);
    workbench.addObserver(observer);
    try {
        static_cast<void>(workbench.remove("a"));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "first");
    }
    workbench.removeObserver(thrower);
    EXPECT_THAT(observer.calls, ElementsAre("removing a", "removed a"));
    EXPECT_THAT(keys(), ElementsAre("d", "e"));
    EXPECT_TRUE(workbench.remove("d"));
}

} // namespace
