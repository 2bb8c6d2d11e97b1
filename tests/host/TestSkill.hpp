#pragma once

// A small skill for the tests of the reference workbench. Its element classes:
//
//   group   accepts every child; no settings
//   leaf    accepts none; no settings
//   point   accepts every child; a limit, references of every kind, and rows with one each
//   custom  a custom element that accepts every child

#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/json/Value.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace corvane::tests {

namespace bindings = corvane::workbench::bindings;
namespace config = corvane::workbench::config;
namespace model = corvane::workbench::model;
namespace process = corvane::workbench::process;
namespace skill = corvane::workbench::skill;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

/// The skill's class object, one for the process.
[[nodiscard]] const skill::Skill::Class& testSkill();

/// A row of a point.
class TestRow final : public skill::SubElement {
public:
    TestRow() = default;
    TestRow(const TestRow&) = default;
    TestRow(TestRow&& other) noexcept : SubElement(), target(std::move(other.target)) {}
    TestRow& operator=(const TestRow&) = default;
    TestRow& operator=(TestRow&& other) noexcept {
        target = std::move(other.target);
        return *this;
    }
    ~TestRow() override = default;

    [[nodiscard]] std::wstring displayName() const override { return L"row"; }
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)> callback) override;

    model::ElementReference target;

private:
    void configureProperties(PropertyConfigurationContext& context) override;
};

/// The rows of a point, in memory that moves as they come and go.
class TestRowList final : public bindings::PropertyContainer {
public:
    /// Changes the rows in any way and tells the containers.
    void change(const std::function<void(std::vector<TestRow>&)>& change);

    std::vector<TestRow> rows;

private:
    void forEachSubPropertyContainer(
        const corvane::utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
        bool includeInvisible) override;
    void forEachLocalCrossReference(
        const corvane::utils::core::function_ref<void(bindings::CrossReferenceController&)>&,
        bool) override {}
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const bindings::PropertyId&) override {}
};

class TestPoint final : public skill::Element {
public:
    static const bindings::PropertyKey kLimit;
    static const bindings::PropertyKey kRows;

    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)> callback) override;

    void setLimit(std::int64_t newLimit);
    /// Gives the point another attribute than "value" and publishes its members.
    void renameAttribute(std::string name);

    /// Invalid above 100.
    std::int64_t limit = 0;
    model::ElementReference target;
    model::AttributeReference attribute;
    process::EventReference event;
    process::TaskReference task;
    TestRowList list;
    /// Thrown by the next makeDefault() of any point when not empty.
    static std::string defaultFailure;
    /// Thrown by the description of the properties when not empty.
    std::string configurationFailure;
    /// Saved as well.
    std::vector<std::pair<std::string, corvane::workbench::json::Value>> furtherMembers;

private:
    void configureProperties(PropertyConfigurationContext& context) override;
    void load(decoder::Object& object, config::Context& context) override;
    void save(encoder::Object& object) const override;
    void makeDefault() override;
    bool forEachAttribute(const corvane::utils::core::function_ref<bool(const model::Attribute&)>&
                              callback) const override;
    bool forEachEvent(const corvane::utils::core::function_ref<bool(const process::Event&)>&
                          callback) const override;
    bool forEachTask(const corvane::utils::core::function_ref<bool(const process::Task&)>& callback)
        const override;

    std::string attributeName_ = "value";
};

} // namespace corvane::tests
