#include <corvane/workbench/process/TaskReference.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <utility>

namespace corvane::workbench::process {

TaskReference::TaskReference() noexcept = default;
TaskReference::TaskReference(const model::internal::ElementReferenceData& data)
    : BasicElementReference(data) {}
TaskReference::TaskReference(model::internal::ElementReferenceData&& data)
    : BasicElementReference(std::move(data)) {}
TaskReference::TaskReference(const TaskReference&) = default;
TaskReference::TaskReference(TaskReference&&) noexcept = default;

TaskReference& TaskReference::operator=(const TaskReference& other) {
    BasicElementReference::operator=(other);
    return *this;
}
TaskReference& TaskReference::operator=(TaskReference&& other) noexcept {
    BasicElementReference::operator=(std::move(other));
    return *this;
}
TaskReference& TaskReference::operator=(const model::internal::ElementReferenceData& data) {
    BasicElementReference::operator=(data);
    return *this;
}
TaskReference& TaskReference::operator=(model::internal::ElementReferenceData&& data) {
    BasicElementReference::operator=(std::move(data));
    return *this;
}

TaskReference::~TaskReference() = default;

TaskReference::operator bool() const noexcept {
    return !data().empty();
}

tl::expected<Task, std::wstring> TaskReference::task() const {
    return data().task();
}

std::string TaskReference::primaryKey() const {
    return data().primaryKey();
}

void TaskReference::save(utils::json::encoder::Value& value) const {
    data().save(value);
}
void TaskReference::saveTo(utils::json::encoder::Array& array) const {
    data().saveTo(array);
}
void TaskReference::saveTo(utils::json::encoder::Object& object, std::string_view name) const {
    data().saveTo(object, name);
}

TaskReference::ImportReference::ImportReference() = default;
TaskReference::ImportReference::ImportReference(const TaskReference& reference)
    : data_(reference.data()) {}
TaskReference::ImportReference::ImportReference(
    model::internal::ElementReferenceData&& data) noexcept
    : data_(std::move(data)) {}
TaskReference::ImportReference::ImportReference(const ImportReference&) = default;
TaskReference::ImportReference::ImportReference(ImportReference&&) noexcept = default;
TaskReference::ImportReference&
TaskReference::ImportReference::operator=(const ImportReference&) = default;
TaskReference::ImportReference&
TaskReference::ImportReference::operator=(ImportReference&&) noexcept = default;
TaskReference::ImportReference::~ImportReference() = default;

TaskReference::ImportReference
TaskReference::ImportReference::makeInternalReference(std::string_view elementKey,
                                                      std::string_view memberName) {
    return ImportReference(
        model::internal::ElementReferenceData::makeImportReference(elementKey, memberName));
}

TaskReference::ImportReference::operator bool() const noexcept {
    return !data_.empty();
}

void TaskReference::ImportReference::save(utils::json::encoder::Value& value) const {
    data_.save(value);
}
void TaskReference::ImportReference::saveTo(utils::json::encoder::Array& array) const {
    data_.saveTo(array);
}
void TaskReference::ImportReference::saveTo(utils::json::encoder::Object& object,
                                            std::string_view name) const {
    data_.saveTo(object, name);
}

} // namespace corvane::workbench::process
