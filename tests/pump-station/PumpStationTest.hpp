#pragma once

#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/LoadResult.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace pump_station::tests {

namespace bindings = corvane::workbench::bindings;
namespace host = corvane::workbench::host;
namespace skill = corvane::workbench::skill;

/// A file of the folder "configurations".
[[nodiscard]] std::filesystem::path configuration(std::string_view name);
[[nodiscard]] std::string readFile(const std::filesystem::path& file);
/// The settings of a skill element as it saves them, in compact JSON.
[[nodiscard]] std::string savedSettings(const skill::Element& element);
/// What `skillbench check` prints of a load: the problems with bare file names, and the invalid
/// properties at the place of their element.
[[nodiscard]] std::vector<std::string> checkLines(const host::Workbench& workbench,
                                                  const host::LoadResult& result,
                                                  const std::filesystem::path& file);

/// What the tests of the example skill need: a workbench with the skill's library, and properties
/// addressed by their paths and read as texts. The skill's C++ classes stay inside its library.
class PumpStationTest : public testing::Test {
protected:
    PumpStationTest();

    host::LoadResult load(const std::filesystem::path& file, const host::LoadOptions& options = {});
    host::LoadResult loadText(std::string_view text);
    [[nodiscard]] std::string saved() const;

    /// Adds an element with its initial settings, which must be accepted.
    host::ElementNode& add(std::string_view parentKey, std::string_view classId,
                           std::string_view name);

    // Properties of elements that must exist. A path names the property of an element, or of a row
    // of a list: "alarmLimits.0.threshold". What can fail returns the message, or "".

    [[nodiscard]] skill::EditableProperty property(std::string_view key,
                                                   std::string_view path) const;
    std::string set(std::string_view key, std::string_view path, std::string_view text);
    std::string refer(std::string_view key, std::string_view path, std::string_view target);
    std::string insertRow(std::string_view key, std::string_view path, std::size_t index);
    std::string removeRow(std::string_view key, std::string_view path, std::size_t index);
    [[nodiscard]] std::string text(std::string_view key, std::string_view path) const;
    [[nodiscard]] std::string state(std::string_view key, std::string_view path) const;
    [[nodiscard]] bool visible(std::string_view key, std::string_view path) const;
    /// The display names of a list's rows.
    [[nodiscard]] std::vector<std::string> rows(std::string_view key, std::string_view path) const;
    /// The names of all properties of an element, in their order.
    [[nodiscard]] std::vector<std::string> propertyNames(std::string_view key) const;

    [[nodiscard]] std::uint64_t errorCount(std::string_view key = {}) const;
    /// The names of the element's own members, without those that every element has.
    [[nodiscard]] std::vector<std::string> attributes(std::string_view key) const;
    [[nodiscard]] std::vector<std::string> events(std::string_view key) const;
    [[nodiscard]] std::vector<std::string> tasks(std::string_view key) const;

    /// Writes the callbacks of a property into `calls`, until the test ends.
    void record(std::string_view key, std::string_view path);
    /// The same for the error count of an element.
    void recordErrorCount(std::string_view key);

    host::Workbench workbench;
    std::vector<std::string> calls;

private:
    std::vector<bindings::PropertyController::Subscription> subscriptions_;
    std::vector<bindings::PropertyContainer::ErrorCountSubscription> errorCountSubscriptions_;
};

} // namespace pump_station::tests
