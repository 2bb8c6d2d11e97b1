#pragma once

// What the tests of the kit have in common: a bench with one element of a class that the test
// describes.

#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/kit/Element.hpp>
#include <corvane/workbench/kit/ElementClass.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/matchers.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace corvane::tests {

using namespace corvane::workbench;
using namespace corvane::workbench::kit::literals;
using corvane::workbench::testing::Announced;
using corvane::workbench::testing::Bench;
using corvane::workbench::testing::BenchElement;
using corvane::workbench::testing::HasError;
using corvane::workbench::testing::HasErrors;
using corvane::workbench::testing::HasRows;
using corvane::workbench::testing::HasText;
using corvane::workbench::testing::IsHidden;
using corvane::workbench::testing::IsOk;
using corvane::workbench::testing::IsVisible;
using corvane::workbench::testing::Refuses;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The class of the elements T, called "Test".
template <class T>
[[nodiscard]] const kit::ElementClass<T>& testClass() {
    static const kit::ElementClass<T> kClass({
        .id = "Test",
        .uuid = "5be1b7d4-90f4-4f1c-8d3a-7c1c8f0f4e01"_uuid,
        .displayName = "Test",
        .description = "For a test.",
        .category = model::ElementCategory::Device,
        .children = model::ElementCategory::Device,
    });
    return kClass;
}

/// A bench with an element "E" of the class T.
template <class T>
class TestBench : public Bench {
public:
    TestBench() : Bench({testClass<T>()}) { add("Test", "E"); }

    /// The element of the skill.
    [[nodiscard]] T& object(std::string_view key = "E") {
        return dynamic_cast<T&>(*element(key).node().skillElement());
    }
    [[nodiscard]] std::string savedSettings() { return element("E").saved(); }

    /// Replaces the element by one with these members, which stand in the second line of the
    /// configuration.
    void loadSettings(std::string_view members) { load(configuration(members)); }
    /// The same for members that are wrong; returns what is said about them.
    [[nodiscard]] std::vector<std::string> problemsOf(std::string_view members) {
        tryLoad(configuration(members));
        return problems();
    }

    /// The setting of the element.
    [[nodiscard]] testing::Setting setting(std::string_view path) { return element("E").at(path); }

private:
    static std::string configuration(std::string_view members) {
        return "{\"children\": [{\"Test\": {\"name\": \"E\",\n" + std::string(members) + "\n}}]}";
    }
};

} // namespace corvane::tests
