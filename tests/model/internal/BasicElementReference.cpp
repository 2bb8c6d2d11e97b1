#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include "RecordingProxy.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using corvane::tests::RecordingProxy;
using corvane::workbench::bindings::CrossReferenceController;
using corvane::workbench::bindings::PropertyController;
using corvane::workbench::bindings::PropertyId;
using corvane::workbench::model::internal::BasicElementReference;
using corvane::workbench::model::internal::ElementReferenceData;
using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::UnorderedElementsAre;

static_assert(std::is_base_of_v<CrossReferenceController, BasicElementReference>);
static_assert(std::has_virtual_destructor_v<BasicElementReference>);
static_assert(sizeof(BasicElementReference) ==
              sizeof(CrossReferenceController) + sizeof(ElementReferenceData) + sizeof(void*));
static_assert(std::is_nothrow_move_constructible_v<BasicElementReference>);
static_assert(std::is_nothrow_move_assignable_v<BasicElementReference>);

class BasicElementReferenceTest : public ::testing::Test {
protected:
    ElementReferenceData to(const std::shared_ptr<RecordingProxy>& proxy, std::string suffix = {},
                            std::optional<std::string> member = std::nullopt) const {
        return {proxy, std::move(suffix), std::move(member)};
    }
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    std::vector<std::string> calls;
    std::shared_ptr<RecordingProxy> pump = std::make_shared<RecordingProxy>("pump", calls);
    std::shared_ptr<RecordingProxy> tank = std::make_shared<RecordingProxy>("tank", calls);
};

// Registration.

TEST_F(BasicElementReferenceTest, ADefaultOneIsEmptyAndRegisteredNowhere) {
    {
        const BasicElementReference reference;
        EXPECT_TRUE(reference.data().empty());
        EXPECT_EQ(reference.referringController(), nullptr);
    }
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(BasicElementReferenceTest, ConstructionRegistersAndDestructionUnregisters) {
    const ElementReferenceData data = to(pump, ".valve", "state");
    {
        const BasicElementReference reference(data);
        EXPECT_THAT(takeCalls(), ElementsAre("pump.attach -> 1"));
        EXPECT_THAT(pump->registered(), ElementsAre(&reference));
        EXPECT_EQ(reference.data().primaryKey(), "pump.valve.state");
    }
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)"));
    EXPECT_EQ(data.primaryKey(), "pump.valve.state");
}

TEST_F(BasicElementReferenceTest, ConstructionFromDataThatIsGivenUpRegistersToo) {
    ElementReferenceData data = to(pump, ".valve");
    const BasicElementReference reference(std::move(data));
    EXPECT_THAT(takeCalls(), ElementsAre("pump.attach -> 1"));
    EXPECT_THAT(pump->registered(), ElementsAre(&reference));
    EXPECT_EQ(reference.data().primaryKey(), "pump.valve");
}

TEST_F(BasicElementReferenceTest, WithoutAProxyNothingIsRegistered) {
    {
        BasicElementReference reference(ElementReferenceData(nullptr, "", "speed"));
        EXPECT_FALSE(reference.data().empty());
        BasicElementReference moved(std::move(reference));
        reference = std::move(moved);
    }
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(BasicElementReferenceTest, ACopyIsASecondRegistration) {
    const BasicElementReference reference(to(pump, ".valve", "state"));
    {
        const BasicElementReference copy(reference);
        EXPECT_THAT(takeCalls(), ElementsAre("pump.attach -> 1", "pump.attach -> 2"));
        EXPECT_THAT(pump->registered(), ElementsAre(&reference, &copy));
        EXPECT_EQ(copy.data().primaryKey(), "pump.valve.state");
    }
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(2)"));
}

TEST_F(BasicElementReferenceTest, AMoveTakesTheRegistrationAlongWithoutACall) {
    auto source = std::make_unique<BasicElementReference>(to(pump, ".valve", "state"));
    takeCalls();
    const BasicElementReference target(std::move(*source));
    EXPECT_THAT(pump->registered(), ElementsAre(&target));
    EXPECT_EQ(target.data().primaryKey(), "pump.valve.state");
    EXPECT_TRUE(source->data().empty());
    EXPECT_EQ(source->data().proxy(), nullptr);
    EXPECT_EQ(source->data().suffix(), "");
    EXPECT_EQ(source->data().memberName(), std::nullopt);
    source.reset();
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(BasicElementReferenceTest, AMovedFromReferenceCanBeUsedAgain) {
    BasicElementReference source(to(pump));
    const BasicElementReference target(std::move(source));
    takeCalls();
    source = to(tank);
    EXPECT_THAT(takeCalls(), ElementsAre("tank.attach -> 1"));
    EXPECT_THAT(tank->registered(), ElementsAre(&source));
    EXPECT_THAT(pump->registered(), ElementsAre(&target));
}

TEST_F(BasicElementReferenceTest, MovingAMovedFromReferenceLeavesTheRegistrationWhereItWent) {
    BasicElementReference source(to(pump));
    const BasicElementReference target(std::move(source));
    BasicElementReference second(std::move(source));
    source = std::move(second);
    EXPECT_THAT(pump->registered(), ElementsAre(&target));
    EXPECT_THAT(takeCalls(), ElementsAre("pump.attach -> 1"));
}

TEST_F(BasicElementReferenceTest, MoveAssignmentEndsTheOwnRegistrationAndTakesTheOther) {
    BasicElementReference target(to(tank, ".level"));
    BasicElementReference source(to(pump, ".valve", "state"));
    takeCalls();
    target = std::move(source);
    EXPECT_THAT(takeCalls(), ElementsAre("tank.detach(1)"));
    EXPECT_THAT(tank->registered(), IsEmpty());
    EXPECT_THAT(pump->registered(), ElementsAre(&target));
    EXPECT_EQ(target.data().primaryKey(), "pump.valve.state");
    EXPECT_TRUE(source.data().empty());
    EXPECT_EQ(source.data().memberName(), std::nullopt);
}

TEST_F(BasicElementReferenceTest, MoveAssignmentOnTheSameProxyKeepsTheSourcesRegistration) {
    BasicElementReference target(to(pump, ".a"));
    BasicElementReference source(to(pump, ".b"));
    takeCalls();
    target = std::move(source);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)"));
    EXPECT_THAT(pump->registered(), ElementsAre(&target));
    EXPECT_EQ(target.data().suffix(), ".b");
    target = BasicElementReference();
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(2)"));
    EXPECT_TRUE(target.data().empty());
}

TEST_F(BasicElementReferenceTest, MoveAssignmentToItselfChangesNothing) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    BasicElementReference& same = reference;
    reference = std::move(same);
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(pump->registered(), ElementsAre(&reference));
    EXPECT_EQ(reference.data().primaryKey(), "pump.valve.state");
}

// Assignment.

TEST_F(BasicElementReferenceTest, AssigningDataWithTheSameProxyKeepsTheRegistration) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    const ElementReferenceData data = to(pump, ".motor");
    reference = data;
    EXPECT_EQ(reference.data().primaryKey(), "pump.motor");
    reference = to(pump, "", "speed");
    EXPECT_EQ(reference.data().primaryKey(), "pump.speed");
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_THAT(pump->registered(), ElementsAre(&reference));
}

TEST_F(BasicElementReferenceTest, AssigningDataWithAnotherProxyDetachesFirstAndThenAttaches) {
    BasicElementReference reference(to(pump));
    takeCalls();
    const ElementReferenceData data = to(tank, ".level", "value");
    reference = data;
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach -> 1"));
    EXPECT_THAT(tank->registered(), ElementsAre(&reference));
    EXPECT_EQ(reference.data().primaryKey(), "tank.level.value");
    reference = to(pump);
    EXPECT_THAT(takeCalls(), ElementsAre("tank.detach(1)", "pump.attach -> 2"));
}

TEST_F(BasicElementReferenceTest, AssigningEmptyDataOnlyDetaches) {
    BasicElementReference reference(to(pump));
    takeCalls();
    reference = ElementReferenceData();
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)"));
    EXPECT_TRUE(reference.data().empty());
}

TEST_F(BasicElementReferenceTest, CopyAssignmentTakesTheDataAndRegistersOnItsOwn) {
    const BasicElementReference source(to(pump, ".valve", "state"));
    BasicElementReference target(to(tank));
    takeCalls();
    target = source;
    EXPECT_THAT(takeCalls(), ElementsAre("tank.detach(1)", "pump.attach -> 2"));
    EXPECT_THAT(pump->registered(), ElementsAre(&source, &target));
    EXPECT_EQ(target.data().primaryKey(), "pump.valve.state");
    EXPECT_EQ(source.data().primaryKey(), "pump.valve.state");
}

TEST_F(BasicElementReferenceTest, AssigningAReferenceToItselfOrItsOwnDataChangesNothing) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    const BasicElementReference& same = reference;
    reference = same;
    reference = same.data();
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(reference.data().primaryKey(), "pump.valve.state");
}

TEST_F(BasicElementReferenceTest, ItConvertsToItsData) {
    const BasicElementReference reference(to(pump, ".valve"));
    const ElementReferenceData& data = reference;
    EXPECT_EQ(&data, &reference.data());
}

// Following the element.

TEST_F(BasicElementReferenceTest, RemapChangesTheProxyAndKeepsSuffixAndMember) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    reference.remap(tank);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach -> 1"));
    EXPECT_EQ(reference.data().primaryKey(), "tank.valve.state");
    EXPECT_THAT(tank->registered(), ElementsAre(&reference));
}

TEST_F(BasicElementReferenceTest, RemapToTheSameProxyDoesNothing) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    reference.remap(pump);
    reference.remap(reference.data().proxy());
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(reference.data().primaryKey(), "pump.valve.state");
}

TEST_F(BasicElementReferenceTest, RemapToNoProxyOnlyDetaches) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    reference.remap(nullptr);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)"));
    EXPECT_EQ(reference.data().suffix(), ".valve");
    EXPECT_THAT(reference.data().memberName(), Optional(Eq("state")));
}

TEST_F(BasicElementReferenceTest, ResolveChangesProxyAndSuffixAndKeepsTheMember) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    reference.resolve(tank, ".level");
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach -> 1"));
    EXPECT_EQ(reference.data().primaryKey(), "tank.level.state");
}

TEST_F(BasicElementReferenceTest, ResolveWithTheSameProxyChangesTheSuffixAlone) {
    BasicElementReference reference(to(pump, ".valve", "state"));
    takeCalls();
    reference.resolve(pump, "");
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(reference.data().primaryKey(), "pump.state");
}

TEST_F(BasicElementReferenceTest, ResolveTakesASuffixThatIsPartOfItsOwn) {
    BasicElementReference reference(to(pump, ".a.long.suffix.that.has.memory.of.its.own", "x"));
    reference.resolve(tank, std::string_view(reference.data().suffix()).substr(2));
    EXPECT_EQ(reference.data().primaryKey(), "tank.long.suffix.that.has.memory.of.its.own.x");
    reference.resolve(tank, std::string_view(reference.data().suffix()).substr(5));
    EXPECT_EQ(reference.data().primaryKey(), "tank.suffix.that.has.memory.of.its.own.x");
}

TEST_F(BasicElementReferenceTest, TheLastReferenceKeepsAProxyAliveThroughItsDetach) {
    BasicElementReference reference(to(pump));
    pump.reset();
    takeCalls();
    reference = to(tank);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach -> 1"));
}

// Null tokens.

TEST_F(BasicElementReferenceTest, AnImportReferenceMovesAndEndsWithoutARegistration) {
    BasicElementReference source(ElementReferenceData::makeImportReference("a.b", "x"));
    BasicElementReference moved(std::move(source));
    EXPECT_EQ(moved.data().primaryKey(), "a.b.x");
    BasicElementReference assigned(to(pump));
    takeCalls();
    assigned = std::move(moved);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)"));
    EXPECT_TRUE(assigned.data().isImportReference());
    assigned = to(tank);
    EXPECT_THAT(takeCalls(), ElementsAre("tank.attach -> 1"));
}

TEST_F(BasicElementReferenceTest, ANullTokenIsHandedBackAsItIs) {
    pump->keepsNoRecords = true;
    {
        BasicElementReference source(to(pump));
        const BasicElementReference moved(std::move(source));
    }
    EXPECT_THAT(takeCalls(), ElementsAre("pump.attach -> null", "pump.detach(null)"));
}

// Failing proxies.

TEST_F(BasicElementReferenceTest, AFailedConstructionDoesNotDetach) {
    pump->failsToAttach = true;
    EXPECT_THROW(BasicElementReference{to(pump)}, std::runtime_error);
    const ElementReferenceData data = to(pump);
    EXPECT_THROW(BasicElementReference{data}, std::runtime_error);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.attach throws", "pump.attach throws"));
    EXPECT_EQ(pump.use_count(), 2);
}

TEST_F(BasicElementReferenceTest, AFailedCopyLeavesTheSourceRegistered) {
    const BasicElementReference reference(to(pump));
    pump->failsToAttach = true;
    takeCalls();
    EXPECT_THROW(BasicElementReference{reference}, std::runtime_error);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.attach throws"));
    EXPECT_THAT(pump->registered(), ElementsAre(&reference));
}

TEST_F(BasicElementReferenceTest, AFailedAssignmentLeavesTheReferenceEmptyAndUnregistered) {
    tank->failsToAttach = true;
    {
        BasicElementReference reference(to(pump, ".valve", "state"));
        takeCalls();
        const ElementReferenceData data = to(tank);
        EXPECT_THROW(reference = data, std::runtime_error);
        EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach throws"));
        EXPECT_TRUE(reference.data().empty());
        EXPECT_EQ(reference.data().suffix(), "");
        EXPECT_EQ(tank.use_count(), 2);
    }
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(BasicElementReferenceTest, AReferenceIsMovedSafelyAfterAFailedAssignment) {
    tank->failsToAttach = true;
    BasicElementReference reference(to(pump));
    EXPECT_THROW(reference = to(tank), std::runtime_error);
    takeCalls();
    // The record of the ended registration is gone and must not be written to.
    BasicElementReference moved(std::move(reference));
    reference = std::move(moved);
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_TRUE(reference.data().empty());
}

TEST_F(BasicElementReferenceTest, AFailedRemapOrResolveLeavesTheReferenceEmptyAndUnregistered) {
    tank->failsToAttach = true;
    BasicElementReference remapped(to(pump, ".valve"));
    BasicElementReference resolved(to(pump, ".valve"));
    takeCalls();
    EXPECT_THROW(remapped.remap(tank), std::runtime_error);
    EXPECT_THROW(resolved.resolve(tank, ".level"), std::runtime_error);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(1)", "tank.attach throws", "pump.detach(2)",
                                         "tank.attach throws"));
    EXPECT_TRUE(remapped.data().empty());
    EXPECT_TRUE(resolved.data().empty());
    tank->failsToAttach = false;
    remapped = to(tank);
    EXPECT_THAT(takeCalls(), ElementsAre("tank.attach -> 1"));
}

// Containers.

class BasicElementReferenceInAVectorTest : public BasicElementReferenceTest {
protected:
    void SetUp() override {
        for (int row = 0; row < 100; ++row) {
            rows.emplace_back(to(row % 2 == 0 ? pump : tank, "." + std::to_string(row * 37 % 100)));
        }
    }

    void expectEveryRowRegisteredOnceWhereItIs() const {
        for (const auto& proxy : {pump, tank}) {
            std::vector<const BasicElementReference*> expected;
            for (const BasicElementReference& row : rows) {
                if (row.data().proxy() == proxy) {
                    expected.push_back(&row);
                }
            }
            EXPECT_THAT(proxy->registered(), ::testing::UnorderedElementsAreArray(expected));
        }
    }

    std::vector<BasicElementReference> rows;
};

TEST_F(BasicElementReferenceInAVectorTest, GrowthMovesEachRegistration) {
    EXPECT_EQ(pump->referenceCount(), 50U);
    expectEveryRowRegisteredOnceWhereItIs();
    // No registration was made anew on the way.
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "pump.attach -> 51"), 0);
    EXPECT_EQ(calls.size(), 100U);
    rows.reserve(rows.capacity() + 1);
    EXPECT_EQ(calls.size(), 100U);
    expectEveryRowRegisteredOnceWhereItIs();
}

TEST_F(BasicElementReferenceInAVectorTest, EraseUnregistersTheErasedRowAlone) {
    takeCalls();
    rows.erase(rows.begin() + 10);
    EXPECT_EQ(pump->referenceCount(), 49U);
    EXPECT_EQ(tank->referenceCount(), 50U);
    EXPECT_THAT(takeCalls(), ElementsAre("pump.detach(6)"));
    expectEveryRowRegisteredOnceWhereItIs();
}

TEST_F(BasicElementReferenceInAVectorTest, InsertingInFrontMovesTheRest) {
    rows.insert(rows.begin(), BasicElementReference(to(tank, ".new")));
    EXPECT_EQ(tank->referenceCount(), 51U);
    expectEveryRowRegisteredOnceWhereItIs();
}

TEST_F(BasicElementReferenceInAVectorTest, SortingKeepsEveryRegistration) {
    takeCalls();
    std::sort(rows.begin(), rows.end(), [](const auto& left, const auto& right) {
        return left.data().suffix() < right.data().suffix();
    });
    EXPECT_EQ(rows.front().data().suffix(), ".0");
    EXPECT_EQ(rows.back().data().suffix(), ".99");
    EXPECT_THAT(takeCalls(), IsEmpty());
    expectEveryRowRegisteredOnceWhereItIs();
}

TEST_F(BasicElementReferenceInAVectorTest, SwappingRotatingAndClearingKeepOrEndRegistrations) {
    std::swap(rows.front(), rows.back());
    std::rotate(rows.begin(), rows.begin() + 33, rows.end());
    expectEveryRowRegisteredOnceWhereItIs();
    rows.clear();
    EXPECT_EQ(pump->referenceCount(), 0U);
    EXPECT_EQ(tank->referenceCount(), 0U);
}

} // namespace
