#include "../../src/json/internal/throwAt.hpp"

#include "decoding.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace corvane::workbench::json::internal {
namespace {

using utils::json::decoder::Location;

TEST(JsonThrowAt, AKnownPlaceGivesALocatedExceptionOfTheErrorsKind) {
    EXPECT_EQ(test::locatedErrorOf<std::runtime_error>(
                  [] { throwAt(Location(3, 7), std::runtime_error("bad member")); }),
              (test::LocatedError{"bad member", 3, 7}));
    EXPECT_EQ(test::locatedErrorOf<std::logic_error>(
                  [] { throwAt(Location(1, 1), std::logic_error("bad type")); }),
              (test::LocatedError{"bad type", 1, 1}));
}

TEST(JsonThrowAt, AnUnknownPlaceGivesAPlainLogicError) {
    try {
        throwAt(Location(), std::runtime_error("bad member"));
    } catch (const utils::json::decoder::Exception&) {
        ADD_FAILURE() << "located without a location";
    } catch (const std::logic_error& error) {
        EXPECT_STREQ(error.what(), "bad member");
    }
}

} // namespace
} // namespace corvane::workbench::json::internal
