#include <corvane/utils/json/decoder/Exception.hpp>

#include <corvane/utils/json/decoder/detail/WrappedException.hpp>

#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>
#include <type_traits>

namespace {

using corvane::utils::json::decoder::Exception;
using corvane::utils::json::decoder::Location;
using corvane::utils::json::decoder::detail::WrappedException;
using Wrapped = WrappedException<std::out_of_range>;

static_assert(!std::is_base_of_v<std::exception, Exception>);
static_assert(std::is_abstract_v<Exception>);
static_assert(std::is_convertible_v<Wrapped*, std::exception*>);

[[noreturn]] void fail() {
    throw Wrapped(Location(3, 4), std::out_of_range("the text"));
}

TEST(JsonDecoderException, IsCaughtAsTheStandardExceptionThatItWraps) {
    bool isCaught = false;
    try {
        fail();
    } catch (const std::out_of_range& error) {
        isCaught = true;
        EXPECT_STREQ(error.what(), "the text");
    }
    EXPECT_TRUE(isCaught);
}

TEST(JsonDecoderException, IsCaughtAsAnyStandardException) {
    bool isCaught = false;
    try {
        fail();
    } catch (const std::exception& error) {
        isCaught = true;
        EXPECT_STREQ(error.what(), "the text");
    }
    EXPECT_TRUE(isCaught);
}

TEST(JsonDecoderException, IsCaughtByItsLocationSide) {
    bool isCaught = false;
    try {
        fail();
    } catch (const Exception& error) {
        isCaught = true;
        EXPECT_EQ(error.location(), Location(3, 4));
        EXPECT_STREQ(error.message(), "the text");
        EXPECT_NE(dynamic_cast<const std::logic_error*>(&error), nullptr);
    }
    EXPECT_TRUE(isCaught);
}

} // namespace
