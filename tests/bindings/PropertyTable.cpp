#include <corvane/workbench/bindings/internal/PropertyTable.hpp>

#include "TestController.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <vector>

namespace corvane::workbench::bindings::internal {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Data {
    int value = 0;
    std::size_t* errors = nullptr;

    void countErrorsIn(std::size_t* count) noexcept { errors = count; }
};

using Table = PropertyTable<Data>;

PropertyId id(std::uint64_t first, std::uint64_t second = 0) {
    return test::TestController::propertyId({first, second});
}

std::vector<int> values(Table& table) {
    std::vector<int> result;
    table.forEach([&](const Data& data) { result.push_back(data.value); });
    return result;
}

TEST(PropertyTable, FindsWhatIsInItWithAndWithoutAnIndex) {
    Table table;
    for (std::uint64_t i = 0; i < 100; ++i) {
        EXPECT_FALSE(table.find(id(i * 64)));
        table.findOrCreate(id(i * 64))->value = static_cast<int>(i);
        for (std::uint64_t j = 0; j <= i; ++j) {
            ASSERT_TRUE(table.find(id(j * 64)));
            EXPECT_EQ(table.find(id(j * 64))->value, static_cast<int>(j));
        }
        EXPECT_EQ(table.size(), i + 1);
    }
}

TEST(PropertyTable, WalksInTheOrderOfInsertionAlsoOverWhatIsMadeAndRemovedMeanwhile) {
    Table table;
    for (int value = 0; value < 12; ++value) {
        table.findOrCreate(id(static_cast<std::uint64_t>(100 - value)))->value = value;
    }
    std::vector<int> visited;
    table.forEach([&](const Data& data) {
        visited.push_back(data.value);
        if (data.value == 2) {
            table.remove(table.find(id(100 - 2)));
            table.remove(table.find(id(100 - 3)));
            table.findOrCreate(id(1))->value = 12;
        }
    });
    EXPECT_THAT(visited, ElementsAre(0, 1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_THAT(values(table), ElementsAre(0, 1, 4, 5, 6, 7, 8, 9, 10, 11, 12));
}

TEST(PropertyTable, KeepsARemovedEntryForItsPinsAndMakesAnotherOneUnderItsIdentifier) {
    for (const std::uint64_t others : {0U, 20U}) {
        Table table;
        for (std::uint64_t other = 0; other < others; ++other) {
            table.findOrCreate(id(other + 2))->value = -1;
        }
        const auto old = table.findOrCreate(id(1));
        old->value = 1;
        table.remove(old);
        table.remove(old);
        EXPECT_EQ(table.size(), others);
        EXPECT_FALSE(table.find(id(1)));
        const auto made = table.findOrCreate(id(1));
        made->value = 2;
        table.remove(old);
        EXPECT_EQ(old->value, 1);
        EXPECT_EQ(table.find(id(1))->value, 2);
    }
}

TEST(PropertyTable, HasEntriesCountTheirErrorsUntilTheyAreRemoved) {
    Table table;
    const auto entry = table.findOrCreate(id(1));
    ASSERT_NE(entry->errors, nullptr);
    ++*entry->errors;
    EXPECT_EQ(table.errorCount(), 1U);
    table.remove(entry);
    EXPECT_EQ(entry->errors, nullptr);
}

TEST(PropertyTable, AgreesWithAMapAfterManyOperationsOnIdentifiersThatCollide) {
    Table table;
    std::map<PropertyId, int> map;
    std::mt19937 random(7); // NOLINT: the same run each time
    for (int operation = 0; operation < 20'000; ++operation) {
        const std::uint64_t number = random() % 60;
        // A third of them have the same hash, a third follow each other.
        const PropertyId name =
            number % 3 == 0 ? id(number, number) : id(number * (number % 3 == 1 ? 1 : 4096));
        if (random() % 2 == 0) {
            table.findOrCreate(name)->value = operation;
            map[name] = operation;
        } else if (const auto entry = table.find(name)) {
            table.remove(entry);
            map.erase(name);
        }
        ASSERT_EQ(table.size(), map.size());
        const std::uint64_t probe = random() % 60;
        for (const PropertyId& any : {id(probe, probe), id(probe), id(probe * 4096)}) {
            const auto entry = table.find(any);
            const auto expected = map.find(any);
            ASSERT_EQ(static_cast<bool>(entry), expected != map.end());
            if (entry) {
                ASSERT_EQ(entry->value, expected->second);
            }
        }
    }
    table.clear();
    EXPECT_EQ(table.size(), 0U);
    EXPECT_THAT(values(table), IsEmpty());
}

} // namespace
} // namespace corvane::workbench::bindings::internal
