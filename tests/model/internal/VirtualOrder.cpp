// The order of a proxy's virtual operations is part of what the workbench relies on.
#include "virtualPosition.hpp"
#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>

#include <gtest/gtest.h>

namespace {

using corvane::tests::virtualPosition;
using Proxy = corvane::workbench::model::internal::AbstractCrossReferenceProxy;

TEST(VirtualOrder, OfACrossReferenceProxy) {
    if (!corvane::tests::kVirtualPositionsKnown) {
        GTEST_SKIP() << "the binary interface is not known";
    }
    EXPECT_EQ(virtualPosition(&Proxy::element), 2U);
    EXPECT_EQ(virtualPosition(&Proxy::referenceCount), 3U);
    EXPECT_EQ(virtualPosition(&Proxy::attach), 4U);
    EXPECT_EQ(virtualPosition(&Proxy::detach), 5U);
    EXPECT_EQ(virtualPosition(&Proxy::primaryKey), 6U);
    EXPECT_EQ(virtualPosition(&Proxy::save), 7U);
}

} // namespace
