#include <corvane/workbench/kit/Form.hpp>

#include <stdexcept>
#include <string>

namespace corvane::workbench::kit {

namespace internal {

void Description::clear() {
    subject = Subject::Setting;
    name = displayName = unit = toolTip = Text();
    property = bindings::PropertyId();
    field = Field();
    rows = nullptr;
    classified = {};
    isReadOnly = false;
    member = nullptr;
    access = model::Attribute::Access::Undefined;
    dataType = {};
    directions = {};
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
    saved = Saved::Always;
    isVisible = true;
    isInitial = false;
    hasInitialValue = false;
    isRequired = false;
    isOptional = false;
    applies = true;
}

Handle::Handle(Form& form) noexcept
    : form_(&form), serial_(form.serial_), property_(form.current_.property) {}

Description& Handle::description() const {
    return form_->described(serial_);
}

Purpose Handle::purpose() const noexcept {
    return form_->purpose_;
}

const bindings::PropertyController& Handle::owner() const noexcept {
    return form_->owner();
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
    if (isDescribing_) {
        isDescribing_ = false;
        take(current_);
    }
}

void Form::begin(Subject subject, Text name, Text displayName) {
    handOver();
    current_.clear();
    current_.subject = subject;
    current_.name = name;
    current_.displayName = displayName;
    isDescribing_ = true;
    ++serial_;
}

Derived Form::beginDerived(Text name, Text displayName) {
    begin(Subject::Derived, name, displayName);
    current_.property = internal::nameId(name);
    return Derived(*this);
}

Derived Form::beginDisplayName() {
    begin(Subject::DisplayName, {}, {});
    return Derived(*this);
}

Member Form::beginMember(Subject subject, Text name, const void* member) {
    begin(subject, name, {});
    current_.member = member;
    return Member(*this);
}

void Form::keepChoices(std::span<const Text> texts) {
    // The list ends with the statement that describes the choice; rules have no need of it.
    if (purpose_ != internal::Purpose::Configure) {
        current_.field.choices = choices_.emplace_back(texts.begin(), texts.end());
    }
}

internal::Description& Form::described(std::uint32_t serial) {
    if (!isDescribing_ || serial != serial_) {
        throw std::logic_error("what is said about “" +
                               std::string(std::string_view(current_.name)) +
                               "” is meant for something that was described before it");
    }
    return current_;
}

} // namespace corvane::workbench::kit
