// What a reference is after memory has run out in any of its operations.
#include "RecordingProxy.hpp"
#include "countedAllocations.hpp"
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace {

using corvane::tests::allocationCount;
using corvane::tests::cancelAllocationFailure;
using corvane::tests::failAllocationAfter;
using corvane::tests::RecordingProxy;
using corvane::workbench::model::internal::BasicElementReference;
using corvane::workbench::model::internal::ElementReferenceData;

class BasicElementReferenceAllocation : public ::testing::Test {
protected:
    BasicElementReferenceAllocation() {
        pump->writesCallsDown = false;
        tank->writesCallsDown = false;
    }

    // Texts with memory of their own, so that copying them can fail.
    ElementReferenceData to(const std::shared_ptr<RecordingProxy>& proxy) const {
        return {proxy, ".a.suffix.that.does.not.fit.into.the.string.itself",
                "a member name that does not fit either"};
    }

    // Lets each allocation of the operation fail in turn, each time on a fresh reference to the
    // pump; afterwards the reference must be registered exactly where its data says.
    template <class Operation>
    void failEachAllocationOf(Operation operation) {
        std::size_t failures = 0;
        for (bool failed = true; failed; ++failures) {
            BasicElementReference reference(to(pump));
            failAllocationAfter(failures);
            try {
                operation(reference);
            } catch (const std::bad_alloc&) {
            }
            failed = !cancelAllocationFailure();
            for (const auto& proxy : {pump, tank}) {
                const bool pointsHere = reference.data().proxy() == proxy;
                EXPECT_EQ(proxy->referenceCount(), pointsHere ? 1U : 0U);
                if (pointsHere) {
                    EXPECT_THAT(proxy->registered(), ::testing::ElementsAre(&reference));
                }
            }
        }
        EXPECT_GT(failures, 1U);
        EXPECT_EQ(pump->referenceCount(), 0U);
        EXPECT_EQ(tank->referenceCount(), 0U);
    }

    std::vector<std::string> calls;
    std::shared_ptr<RecordingProxy> pump = std::make_shared<RecordingProxy>("pump", calls);
    std::shared_ptr<RecordingProxy> tank = std::make_shared<RecordingProxy>("tank", calls);
};

TEST_F(BasicElementReferenceAllocation, AFailedAssignmentOfDataLeavesTheRegistrationRight) {
    const ElementReferenceData data = to(tank);
    failEachAllocationOf([&](BasicElementReference& reference) { reference = data; });
}

TEST_F(BasicElementReferenceAllocation, AFailedAssignmentOfTheSameProxyLeavesTheDataAsItWas) {
    const ElementReferenceData data(pump, ".another.suffix.that.does.not.fit.into.the.string",
                                    "another member name that does not fit either");
    BasicElementReference reference(to(pump));
    for (std::size_t successes = 0; successes < 2; ++successes) {
        failAllocationAfter(successes);
        EXPECT_THROW(reference = data, std::bad_alloc);
        EXPECT_EQ(reference.data().primaryKey(),
                  "pump.a.suffix.that.does.not.fit.into.the.string.itself"
                  ".a member name that does not fit either");
    }
    EXPECT_THAT(pump->registered(), ::testing::ElementsAre(&reference));
}

TEST_F(BasicElementReferenceAllocation, AFailedRemapLeavesTheRegistrationRight) {
    failEachAllocationOf([&](BasicElementReference& reference) { reference.remap(tank); });
}

TEST_F(BasicElementReferenceAllocation, AFailedResolveLeavesTheRegistrationRight) {
    failEachAllocationOf([&](BasicElementReference& reference) {
        reference.resolve(tank, ".another.suffix.that.does.not.fit.into.the.string");
    });
}

TEST_F(BasicElementReferenceAllocation, AFailedCopyRegistersNothing) {
    failEachAllocationOf([](const BasicElementReference& reference) {
        const BasicElementReference copy(reference);
    });
}

TEST_F(BasicElementReferenceAllocation, MovingAllocatesNothing) {
    BasicElementReference source(to(pump));
    BasicElementReference target(to(pump));
    const std::size_t before = allocationCount();
    BasicElementReference moved(std::move(source));
    EXPECT_EQ(allocationCount(), before);
    source = std::move(moved);
    EXPECT_EQ(allocationCount(), before);
}

} // namespace
