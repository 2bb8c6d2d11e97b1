#include <corvane/utils/memory/SafeGlobal.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

using corvane::utils::memory::SafeGlobal;

static_assert(std::is_trivially_destructible_v<SafeGlobal<std::string>>);
static_assert(!std::is_copy_constructible_v<SafeGlobal<std::string>>);

struct Counted {
    Counted() { ++constructions; }
    static inline std::atomic<int> constructions = 0;
    int number = 0;
};

/// One that nobody has used, however often a test runs in a process; it stays until the process
/// ends, which destroys its object.
template <class T>
SafeGlobal<T>& anotherGlobal() {
    // Never destroyed, but never out of reach either.
    static auto* const all = new std::deque<SafeGlobal<T>>;
    return all->emplace_back();
}

constinit SafeGlobal<std::vector<int>> early;
/// Runs before main, perhaps before anything else of this file.
const bool wasUsedEarly = [] {
    early->push_back(1);
    return true;
}();

TEST(SafeGlobal, CanBeUsedDuringStaticInitialisation) {
    EXPECT_TRUE(wasUsedEarly);
    ASSERT_EQ(early->size(), 1U);
    EXPECT_EQ((*early)[0], 1);
}

TEST(SafeGlobal, ConstructsItsObjectOnFirstUseOnly) {
    auto& global = anotherGlobal<Counted>();
    Counted::constructions = 0;
    global->number = 3;
    EXPECT_EQ(global.get().number, 3);
    EXPECT_EQ(&*global, &global.get());
    EXPECT_EQ(Counted::constructions, 1);
}

TEST(SafeGlobal, ConstructsOnceWhenManyThreadsAskTogether) {
    auto& global = anotherGlobal<Counted>();
    Counted::constructions = 0;
    std::vector<Counted*> seen(8);
    std::vector<std::thread> threads;
    std::atomic<bool> start = false;
    for (Counted*& object : seen) {
        threads.emplace_back([&global, &start, &object] {
            while (!start) {
                std::this_thread::yield();
            }
            object = &global.get();
        });
    }
    start = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(Counted::constructions, 1);
    EXPECT_EQ(seen, std::vector<Counted*>(8, &global.get()));
}

struct FailsOnce {
    FailsOnce() {
        if (++attempts == 1) {
            throw std::runtime_error("not yet");
        }
    }
    static inline int attempts = 0;
};

TEST(SafeGlobal, TriesAgainAfterAConstructorThatThrew) {
    auto& global = anotherGlobal<FailsOnce>();
    FailsOnce::attempts = 0;
    EXPECT_THROW((void)global.get(), std::runtime_error);
    EXPECT_NO_THROW((void)global.get());
    EXPECT_EQ(FailsOnce::attempts, 2);
}

template <char Letter>
struct Announces {
    ~Announces() {
        std::fputc(Letter, stderr);
        std::fflush(stderr);
    }
};

TEST(SafeGlobalDeathTest, DestroysAtProcessExitInReverseOrderOfConstruction) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    static constinit SafeGlobal<Announces<'a'>> first;
    static constinit SafeGlobal<Announces<'b'>> second;
    static constinit SafeGlobal<Announces<'c'>> never;
    (void)never;
    EXPECT_EXIT(
        {
            (void)first.get();
            (void)second.get();
            std::exit(7);
        },
        ::testing::ExitedWithCode(7), "^ba$");
}

} // namespace
