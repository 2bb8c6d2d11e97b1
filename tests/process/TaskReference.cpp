#include <corvane/workbench/process/TaskReference.hpp>

#include "model/FakeElement.hpp"
#include "model/internal/typedReferences.hpp"

#include <gtest/gtest.h>

namespace corvane::tests {

struct TaskReferenceKind : MemberReferenceKind {
    using Reference = workbench::process::TaskReference;

    static Reference make(const workbench::model::internal::ElementReferenceData& value) {
        return Reference(value);
    }
    static Reference make(workbench::model::internal::ElementReferenceData&& value) {
        return Reference(std::move(value));
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Task, TypedReference, TaskReferenceKind);

namespace {

using workbench::model::internal::ElementReferenceData;
using workbench::process::Task;
using workbench::process::TaskReference;

TEST(TaskReference, ResolvesToTheTask) {
    std::vector<std::string> calls;
    FakeElement pump;
    pump.taskList.push_back(Task::kReconnect);
    const auto proxy = std::make_shared<RecordingProxy>("pump", calls, &pump);
    const TaskReference reference(ElementReferenceData(proxy, "", "reconnect"));
    ASSERT_TRUE(reference.task().has_value());
    EXPECT_EQ(reference.task()->name(), "reconnect");
}

TEST(TaskReference, ExplainsWhyItDoesNotResolve) {
    EXPECT_EQ(TaskReference().task().error(), L"empty task key");
}

TEST(TaskReference, AnInternalReferenceSavesWithTheImportPrefix) {
    const auto reference = TaskReference::ImportReference::makeInternalReference("a.b", "start");
    EXPECT_TRUE(static_cast<bool>(reference));
    EXPECT_EQ(savedText(reference), R"(".import:a.b.start")");
}

} // namespace
} // namespace corvane::tests
