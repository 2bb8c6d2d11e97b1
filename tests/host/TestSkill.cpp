#include "TestSkill.hpp"

#include "TestElementClass.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>

#include <stdexcept>
#include <utility>

namespace corvane::tests {

namespace {

using model::ElementCategory;

/// Without settings.
class PlainElement final : public skill::Element {
public:
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)>) override {}
};

class TestSkillClass final : public skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "test"; }
    [[nodiscard]] std::wstring displayName() const override { return L"Test skill"; }
    [[nodiscard]] std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(group_);
        registry.registerElementClass(leaf_);
        registry.registerElementClass(point_);
        registry.registerElementClass(custom_);
    }
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<TestSkillInstance>();
    }

private:
    TestElementClass<PlainElement> group_{"group", 1, ElementCategory::ElementGroup, true};
    TestElementClass<PlainElement> leaf_{"leaf", 2, ElementCategory::DataPoint, false};
    TestElementClass<TestPoint> point_{"point", 3, ElementCategory::DataPoint, true};
    TestElementClass<PlainElement> custom_{"custom", 4, ElementCategory::CustomElement, true};
};

template <class Result>
bindings::PropertyController::PropertyState stateOf(const Result& result) {
    if (result) {
        return {};
    }
    return tl::unexpected(result.error());
}

skill::EditableProperty describeReference(std::string name,
                                          bindings::PropertyController& controller,
                                          const model::internal::BasicElementReference& reference) {
    skill::EditableProperty property;
    property.displayName = corvane::utils::string::toWide(name);
    property.name = std::move(name);
    property.editor = skill::EditableProperty::Editor::Reference;
    property.property = controller.propertyHandle(reference.propertyId());
    property.text = [&reference] {
        return corvane::utils::string::toWide(reference.data().primaryKey());
    };
    return property;
}

} // namespace

const skill::Skill::Class& testSkill() {
    static const TestSkillClass instance;
    return instance;
}

void TestRow::forEachEditableProperty(
    corvane::utils::core::function_ref<void(const skill::EditableProperty&)> callback) {
    callback(describeReference("target", *this, target));
}

void TestRow::configureProperties(PropertyConfigurationContext& context) {
    context.configure(
        target.propertyId(),
        {.state = [this] { return target ? stateOf(target.element()) : PropertyState(); }},
        {.crossReferenceController = &target});
}

void TestRowList::change(const std::function<void(std::vector<TestRow>&)>& change) {
    change(rows);
    subPropertyContainerListChanged({.updateEnclosingContainers = true});
    // Rows that stayed may hold what others held before.
    for (const TestRow& row : rows) {
        row.target.updateValue();
    }
}

void TestRowList::forEachSubPropertyContainer(
    const corvane::utils::core::function_ref<void(bindings::PropertyContainer&)>& callback,
    bool /*includeInvisible*/) {
    for (TestRow& row : rows) {
        callback(row);
    }
}

const bindings::PropertyKey TestPoint::kLimit;
const bindings::PropertyKey TestPoint::kRows;
std::string TestPoint::defaultFailure;

void TestPoint::forEachEditableProperty(
    corvane::utils::core::function_ref<void(const skill::EditableProperty&)> callback) {
    {
        skill::EditableProperty property;
        property.name = "limit";
        property.displayName = L"Limit";
        property.editor = skill::EditableProperty::Editor::Number;
        property.property = propertyHandle(kLimit);
        property.text = [this] { return std::to_wstring(limit); };
        property.setText = [this](std::wstring_view text) -> tl::expected<void, std::wstring> {
            const auto number =
                corvane::utils::numeric::parse<std::int64_t>(corvane::utils::string::toUtf8(text));
            if (!number) {
                return tl::unexpected(std::wstring(L"not a number"));
            }
            setLimit(*number);
            return {};
        };
        callback(property);
    }
    callback(describeReference("target", *this, target));
    callback(describeReference("attribute", *this, attribute));
    callback(describeReference("event", *this, event));
    callback(describeReference("task", *this, task));
    skill::EditableProperty property;
    property.name = "rows";
    property.displayName = L"Rows";
    property.editor = skill::EditableProperty::Editor::SubElementList;
    property.property = propertyHandle(kRows);
    property.text = [this] { return std::to_wstring(list.rows.size()); };
    property.forEachSubElement =
        [this](const corvane::utils::core::function_ref<void(skill::SubElement&)>& visit) {
            for (TestRow& row : list.rows) {
                visit(row);
            }
        };
    callback(property);
}

void TestPoint::setLimit(std::int64_t newLimit) {
    limit = newLimit;
    publish(kLimit, bindings::Action::Update, 0);
}

void TestPoint::renameAttribute(std::string name) {
    attributeName_ = std::move(name);
    publishElementMembers();
}

void TestPoint::configureProperties(PropertyConfigurationContext& context) {
    if (!configurationFailure.empty()) {
        throw std::runtime_error(configurationFailure);
    }
    context.configure(kLimit, {.state = [this]() -> PropertyState {
                          if (limit > 100) {
                              return tl::unexpected(std::wstring(L"the limit is above 100"));
                          }
                          return {};
                      }});
    context.configure(
        target.propertyId(),
        {.state = [this] { return target ? stateOf(target.element()) : PropertyState(); }},
        {.crossReferenceController = &target});
    context.configure(
        attribute.propertyId(),
        {.state = [this] { return attribute ? stateOf(attribute.attribute()) : PropertyState(); }},
        {.crossReferenceController = &attribute});
    context.configure(
        event.propertyId(),
        {.state = [this] { return event ? stateOf(event.event()) : PropertyState(); }},
        {.crossReferenceController = &event});
    context.configure(task.propertyId(),
                      {.state = [this] { return task ? stateOf(task.task()) : PropertyState(); }},
                      {.crossReferenceController = &task});
    context.configure(kRows, {}, {.subPropertyContainer = &list});
    list.change([](std::vector<TestRow>&) {});
}

void TestPoint::load(decoder::Object& object, config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "limit") {
            limit = value.asInt64();
        } else if (name == "target") {
            context.resolve(config::Context::ReferenceKey(value), std::ref(target));
        } else if (name == "attribute") {
            context.resolve(config::Context::ReferenceKey(value), std::ref(attribute));
        } else if (name == "event") {
            context.resolve(config::Context::ReferenceKey(value), std::ref(event));
        } else if (name == "task") {
            context.resolve(config::Context::ReferenceKey(value), std::ref(task));
        } else if (name == "rows") {
            auto array = value.asArray();
            list.rows = std::vector<TestRow>(array.elementCount());
            std::size_t index = 0;
            for (auto& element : array) {
                context.resolve(config::Context::ReferenceKey(element),
                                std::ref(list.rows[index++].target));
            }
        } else if (name == "fail") {
            throw std::runtime_error(std::string(value.asString().view()));
        } else if (name == "failLater") {
            configurationFailure = std::string(value.asString().view());
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void TestPoint::save(encoder::Object& object) const {
    object.addMember("limit").writeNumber(corvane::utils::numeric::format(limit));
    if (target) {
        target.saveTo(object, "target");
    }
    if (attribute) {
        attribute.saveTo(object, "attribute");
    }
    if (event) {
        event.saveTo(object, "event");
    }
    if (task) {
        task.saveTo(object, "task");
    }
    if (!list.rows.empty()) {
        encoder::Array array = object.addMember("rows").writeArray();
        for (const TestRow& row : list.rows) {
            row.target.saveTo(array);
        }
    }
    for (const auto& [name, content] : furtherMembers) {
        encoder::Value value = object.addMember(name);
        content.encode(value);
    }
}

void TestPoint::makeDefault() {
    limit = 50;
    if (!defaultFailure.empty()) {
        throw std::runtime_error(std::exchange(defaultFailure, {}));
    }
}

bool TestPoint::forEachAttribute(
    const corvane::utils::core::function_ref<bool(const model::Attribute&)>& callback) const {
    return callback(model::Attribute(std::string(attributeName_),
                                     model::Attribute::Access::ReadWrite,
                                     workbench::data::DataType{4, 8}, {}));
}

bool TestPoint::forEachEvent(
    const corvane::utils::core::function_ref<bool(const process::Event&)>& callback) const {
    return callback(process::Event("alarm", {}));
}

bool TestPoint::forEachTask(
    const corvane::utils::core::function_ref<bool(const process::Task&)>& callback) const {
    return callback(process::Task("reset"));
}

} // namespace corvane::tests
