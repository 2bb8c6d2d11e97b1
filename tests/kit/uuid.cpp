#include <corvane/workbench/kit/uuid.hpp>

#include <corvane/utils/core/Uuid.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace corvane::tests {
namespace {

using namespace corvane::workbench::kit::literals;

TEST(UuidLiteral, IsTheUuidThatItReads) {
    constexpr utils::core::Uuid kUuid = "01234567-89ab-cdef-0123-456789ABCDEF"_uuid;
    EXPECT_EQ(kUuid.toString(), "01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_EQ(std::optional(kUuid), utils::core::Uuid::parse(kUuid.toString()));
    EXPECT_TRUE("00000000-0000-0000-0000-000000000000"_uuid.isNil());
}

template <std::size_t Size>
struct Literal {
    // NOLINTNEXTLINE(google-explicit-constructor): literals are written as they are
    consteval Literal(const char (&literal)[Size]) { std::copy_n(literal, Size, text); }

    char text[Size]{};
};

/// Whether the literal compiles.
template <Literal L>
concept Compiles = requires {
    typename std::bool_constant<(operator""_uuid(L.text, sizeof L.text - 1).isNil(), true)>;
};

static_assert(Compiles<"01234567-89ab-cdef-0123-456789abcdef">);
static_assert(!Compiles<"">);
static_assert(!Compiles<"0123456789abcdef0123456789abcdef">);
static_assert(!Compiles<"01234567-89ab-cdef-0123-456789abcde">);
static_assert(!Compiles<"01234567-89ab-cdef-0123-456789abcdeff">);
static_assert(!Compiles<"01234567-89ab-cdef-0123-456789abcdeg">);
static_assert(!Compiles<"0123456-789ab-cdef-0123-456789abcdef">);
static_assert(!Compiles<"{1234567-89ab-cdef-0123-456789abcde}">);

} // namespace
} // namespace corvane::tests
