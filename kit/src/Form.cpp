#include <corvane/workbench/kit/Form.hpp>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::workbench::kit {

namespace internal {

void Behaviour::clear() {
    unit = toolTip = Text();
    classified = {};
    rules.clear();
    visibility = nullptr;
    derivedText = nullptr;
    valueDependencies.clear();
    stateDependencies.clear();
    visibilityDependencies.clear();
    memberDependencies.clear();
    raisedProperties.clear();
    actions.clear();
    proposal = nullptr;
    isReadOnly = isRequired = isOptional = false;
}

void Description::begin(Subject newSubject, Text newName, Text newDisplayName) {
    subject = newSubject;
    saved = Saved::Always;
    isVisible = true;
    isInitial = false;
    hasInitialValue = false;
    applies = true;
    name = newName;
    displayName = newDisplayName;
    field = Field();
    rows = nullptr;
    member = nullptr;
    dataType = {};
    access = model::Attribute::Access::Undefined;
    directions = {};
    if (behaviour) {
        property = bindings::PropertyId();
        behaviour->clear();
    }
}

void Handle::throwForAnother() const {
    throw std::logic_error("what is said about “" +
                           std::string(std::string_view(description_->name)) +
                           "” is meant for something that was described before it");
}

} // namespace internal

using Subject = internal::Description::Subject;

Form::~Form() = default;

Setting<std::string> Form::text(Text name, Text displayName, std::string& field) {
    return begin(name, displayName, field, internal::textKind());
}

Setting<double> Form::number(Text name, Text displayName, double& field) {
    return begin(name, displayName, field, internal::numberKind());
}

Setting<bool> Form::flag(Text name, Text displayName, bool& field) {
    return begin(name, displayName, field, internal::flagKind());
}

Setting<chrono::Duration> Form::duration(Text name, Text displayName, chrono::Duration& field) {
    return begin(name, displayName, field, internal::durationKind());
}

Setting<std::string> Form::timeStamp(Text name, Text displayName, std::string& field) {
    return begin(name, displayName, field, internal::timeStampKind());
}

Setting<utils::core::Uuid> Form::uuid(Text name, Text displayName, utils::core::Uuid& field) {
    return begin(name, displayName, field, internal::uuidKind());
}

Setting<model::ElementReference> Form::reference(Text name, Text displayName,
                                                 model::ElementReference& field) {
    return begin(name, displayName, field, internal::elementReferenceKind());
}

Setting<model::AttributeReference> Form::reference(Text name, Text displayName,
                                                   model::AttributeReference& field) {
    return begin(name, displayName, field, internal::attributeReferenceKind());
}

Setting<process::EventReference> Form::reference(Text name, Text displayName,
                                                 process::EventReference& field) {
    return begin(name, displayName, field, internal::eventReferenceKind());
}

Setting<process::TaskReference> Form::reference(Text name, Text displayName,
                                                process::TaskReference& field) {
    return begin(name, displayName, field, internal::taskReferenceKind());
}

Setting<json::Object> Form::json(Text name, Text displayName, json::Object& field) {
    return begin(name, displayName, field, internal::jsonObjectKind()).savedWhenNotInitial();
}

Setting<json::Value> Form::json(Text name, Text displayName, json::Value& field) {
    return begin(name, displayName, field, internal::jsonValueKind()).savedWhenNotInitial();
}

void Form::writtenAsValue() {
    handOver();
    takeWrittenAsValue();
}

Member Form::attribute(const model::Attribute& attribute) {
    return beginMember(Subject::Attribute, {}, &attribute);
}

Member Form::attribute(Text name, model::Attribute::Access access, const data::DataType& type) {
    using Access = model::Attribute::Access;
    const Member member = beginMember(Subject::Attribute, name, nullptr);
    current_.access = access;
    current_.dataType = type;
    if (access == Access::ReadOnly || access == Access::ReadWrite) {
        current_.directions.set(io::Direction::Read);
    }
    if (access == Access::WriteOnly || access == Access::ReadWrite) {
        current_.directions.set(io::Direction::Write);
    }
    return member;
}

Member Form::event(const process::Event& event) {
    return beginMember(Subject::Event, {}, &event);
}

Member Form::event(Text name, utils::core::Flags<io::Direction> directions) {
    const Member member = beginMember(Subject::Event, name, nullptr);
    current_.directions = directions;
    return member;
}

Member Form::task(const process::Task& task) {
    return beginMember(Subject::Task, {}, &task);
}

Member Form::task(Text name) {
    return beginMember(Subject::Task, name, nullptr);
}

void Form::fillIn() {
    subject_.describe(*this);
    handOver();
}

void Form::handOver() {
    if (current_.serial != 0) {
        current_.serial = 0;
        take(current_);
    }
}

void Form::begin(Subject subject, Text name, Text displayName) {
    handOver();
    current_.begin(subject, name, displayName);
    current_.serial = ++count_;
}

void Form::beginSetting(Text name, Text displayName, const internal::Field& field) {
    begin(Subject::Setting, name, displayName);
    current_.field = field;
}

Derived Form::beginDerived(Text name, Text displayName) {
    begin(Subject::Derived, name, displayName);
    current_.property = internal::nameId(name);
    return Derived(current_);
}

Derived Form::beginDisplayName() {
    begin(Subject::DisplayName, {}, {});
    return Derived(current_);
}

Member Form::beginMember(Subject subject, Text name, const void* member) {
    begin(subject, name, {});
    current_.member = member;
    return Member(current_);
}

void Form::keepChoices(std::span<const Text> texts) {
    // The list ends with the statement that describes the choice; rules have no need of it.
    if (current_.purpose != internal::Purpose::Configure) {
        std::pmr::polymorphic_allocator<Text> allocator(&memory_);
        Text* const kept = allocator.allocate(texts.size());
        std::ranges::uninitialized_copy(texts, std::span(kept, texts.size()));
        current_.field.choices = {kept, texts.size()};
    }
}

} // namespace corvane::workbench::kit
