#include <corvane/utils/core/Uuid.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <unordered_set>

namespace {

using corvane::utils::core::Uuid;

constexpr Uuid::Bytes kBytes{0x01, 0x23, 0x45, 0x67, 0x89, 0xab, 0xcd, 0xef,
                             0xfe, 0xdc, 0xba, 0x98, 0x76, 0x54, 0x32, 0x10};

TEST(Uuid, IsNilByDefault) {
    constexpr Uuid uuid;
    static_assert(uuid.isNil());
    EXPECT_EQ(uuid.toString(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, ReadsTheCanonicalForm) {
    const auto uuid = Uuid::parse("01234567-89ab-cdef-fedc-ba9876543210");
    ASSERT_TRUE(uuid.has_value());
    EXPECT_EQ(uuid->bytes(), kBytes);
    EXPECT_FALSE(uuid->isNil());
}

TEST(Uuid, ReadsEitherCaseAndWritesLowerCase) {
    const auto uuid = Uuid::parse("01234567-89AB-CdEf-FEDC-BA9876543210");
    ASSERT_TRUE(uuid.has_value());
    EXPECT_EQ(uuid->toString(), "01234567-89ab-cdef-fedc-ba9876543210");
}

TEST(Uuid, RefusesEverythingButTheCanonicalForm) {
    for (const std::string_view text : {
             "",
             "01234567-89ab-cdef-fedc-ba987654321",
             "01234567-89ab-cdef-fedc-ba98765432100",
             "0123456789abcdeffedcba9876543210",
             "{01234567-89ab-cdef-fedc-ba9876543210}",
             " 01234567-89ab-cdef-fedc-ba987654321",
             "01234567-89ab-cdef-fedc-ba987654321 ",
             "0123456-789ab-cdef-fedc-ba9876543210",
             "01234567-89abc-def-fedc-ba9876543210",
             "01234567-89ab-cdeff-edc-ba9876543210",
             "01234567-89ab-cdef-fedcb-a9876543210",
             "01234567-89ab-cdef-fedc-ba987654321g",
             "0123456g-89ab-cdef-fedc-ba9876543210",
             "01234567+89ab-cdef-fedc-ba9876543210",
             "-1234567-89ab-cdef-fedc-ba9876543210",
         }) {
        EXPECT_FALSE(Uuid::parse(text).has_value()) << text;
    }
}

TEST(Uuid, OrdersAndComparesByItsBytes) {
    const auto low = Uuid::parse("00000000-0000-0000-0000-0000000000ff");
    const auto high = Uuid::parse("01000000-0000-0000-0000-000000000000");
    EXPECT_LT(Uuid(), *low);
    EXPECT_LT(*low, *high);
    EXPECT_EQ(Uuid(kBytes), Uuid::parse("01234567-89ab-cdef-fedc-ba9876543210"));
    EXPECT_NE(*low, *high);
}

TEST(Uuid, GeneratesRandomIdentifiersOfVersionFour) {
    std::set<Uuid> seen;
    for (int round = 0; round != 200; ++round) {
        const Uuid uuid = Uuid::generate();
        const std::string text = uuid.toString();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string_view("89ab").find(text[19]), std::string_view::npos) << text;
        EXPECT_EQ(Uuid::parse(text), uuid);
        EXPECT_TRUE(seen.insert(uuid).second) << text;
    }
}

TEST(Uuid, HashesIdentifiersThatDifferInOneByteApart) {
    std::unordered_set<std::size_t> hashes;
    for (std::size_t index = 0; index != 16; ++index) {
        Uuid::Bytes bytes = kBytes;
        bytes[index] = static_cast<std::uint8_t>(bytes[index] + 1);
        hashes.insert(std::hash<Uuid>()(Uuid(bytes)));
    }
    EXPECT_EQ(hashes.size(), 16U);
    EXPECT_EQ(std::hash<Uuid>()(Uuid(kBytes)), std::hash<Uuid>()(Uuid(kBytes)));
}

} // namespace
