#pragma once

// What most tests of the workbench need: one with the test skill, texts in and out, and a record
// of what is told to observers.

#include "TestSkill.hpp"
#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace corvane::tests {

namespace host = corvane::workbench::host;

/// Writes down every call.
class RecordingObserver final : public host::Observer {
public:
    std::vector<std::string> calls;

    void configurationUnloading() override { calls.emplace_back("unloading"); }
    void configurationLoaded() override { calls.emplace_back("loaded"); }
    void elementAdded(const host::ElementNode& element) override {
        calls.push_back("added " + element.primaryKey());
    }
    void elementRenamed(const host::ElementNode& element, std::string_view oldKey) override {
        calls.push_back("renamed " + std::string(oldKey) + " to " + element.primaryKey());
    }
    void elementMoved(const host::ElementNode& element, std::string_view oldKey) override {
        calls.push_back("moved " + std::string(oldKey) + " to " + element.primaryKey());
    }
    void elementRemoving(const host::ElementNode& element) override {
        calls.push_back("removing " + element.primaryKey());
    }
    void elementRemoved(std::string_view key) override {
        calls.push_back("removed " + std::string(key));
    }
    void elementMembersChanged(const host::ElementNode& element) override {
        calls.push_back("members of " + element.primaryKey());
    }
    void referenceKeyChanged(const model::internal::BasicElementReference& reference) override {
        calls.push_back("key " + reference.data().primaryKey());
    }
    void referenceStateChanged(const model::internal::BasicElementReference& reference) override {
        calls.push_back("state " + reference.data().primaryKey());
    }
};

class WorkbenchTest : public testing::Test {
protected:
    WorkbenchTest() { EXPECT_TRUE(workbench.addSkill(testSkill())); }

    host::LoadResult load(std::string_view text, const host::LoadOptions& options = {}) {
        corvane::utils::io::MemoryInputStream<char> stream(text);
        return workbench.loadConfiguration(stream, "test.json", options);
    }
    /// Loads a text that must be without a problem.
    void loadClean(std::string_view text) {
        const host::LoadResult result = load(text);
        EXPECT_TRUE(result.loaded);
        EXPECT_THAT(lines(result), testing::IsEmpty());
    }
    /// The problems as they would be printed.
    static std::vector<std::string> lines(const host::LoadResult& result) {
        std::vector<std::string> texts;
        for (const host::Problem& problem : result.problems) {
            texts.push_back(toString(problem));
        }
        return texts;
    }
    [[nodiscard]] std::string saved() const {
        corvane::workbench::json::internal::StringOutputStream stream;
        EXPECT_TRUE(workbench.saveConfiguration(stream));
        return stream.take();
    }
    /// The point of that key, which must exist.
    [[nodiscard]] TestPoint& point(std::string_view key) const {
        return dynamic_cast<TestPoint&>(*workbench.findElement(key)->skillElement());
    }
    /// The keys of all elements in the order of the tree.
    [[nodiscard]] std::vector<std::string> keys() const {
        std::vector<std::string> result;
        collectKeys(workbench.root(), result);
        return result;
    }
    template <class T>
    static std::string textOf(const host::Result<T>& result) {
        return result ? "success" : result.error().text;
    }

    host::Workbench workbench;

private:
    static void collectKeys(const host::ElementNode& node, std::vector<std::string>& keys) {
        for (std::size_t index = 0; index < node.childCount(); ++index) {
            keys.push_back(node.child(index).primaryKey());
            collectKeys(node.child(index), keys);
        }
    }
};

} // namespace corvane::tests
