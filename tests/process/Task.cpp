#include <corvane/workbench/process/Task.hpp>

#include <gtest/gtest.h>

#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using corvane::workbench::process::Task;

static_assert(std::is_copy_constructible_v<Task> && std::is_copy_assignable_v<Task>);
static_assert(std::is_nothrow_move_constructible_v<Task> &&
              std::is_nothrow_move_assignable_v<Task>);
static_assert(std::is_same_v<decltype(std::declval<Task>().name()), std::string_view>);

TEST(Task, ATaskHasTheNameItWasMadeWith) {
    const Task task("flush");
    EXPECT_EQ(task.name(), "flush");
}

TEST(Task, ACopyIsIndependentOfItsSource) {
    Task source("flush");
    const Task copy = source;
    source = Task("drain");
    EXPECT_EQ(copy.name(), "flush");
    EXPECT_EQ(source.name(), "drain");
}

TEST(Task, TasksAreEqualWhenTheirNamesAre) {
    EXPECT_EQ(Task("flush"), Task("flush"));
    EXPECT_NE(Task("flush"), Task("Flush"));
}

TEST(Task, ReconnectIsPredefined) {
    EXPECT_EQ(Task::kReconnect.name(), "reconnect");
}

const Task kCopyMadeAtStart = Task::kReconnect;

TEST(Task, ThePredefinedTaskIsReadyForTheStaticsOfASkill) {
    EXPECT_EQ(kCopyMadeAtStart.name(), "reconnect");
}

} // namespace
