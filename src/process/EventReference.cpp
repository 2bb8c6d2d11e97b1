#include <corvane/workbench/process/EventReference.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <utility>

namespace corvane::workbench::process {

EventReference::EventReference() noexcept = default;
EventReference::EventReference(EventSearchOptions options) noexcept : options_(options) {}
EventReference::EventReference(const model::internal::ElementReferenceData& data,
                               EventSearchOptions options)
    : BasicElementReference(data), options_(options) {}
EventReference::EventReference(model::internal::ElementReferenceData&& data,
                               EventSearchOptions options)
    : EventReference(std::as_const(data), options) {}
EventReference::EventReference(const EventReference& other)
    : BasicElementReference(other), options_(other.options_) {}
EventReference::EventReference(EventReference&& other) noexcept
    : BasicElementReference(std::move(other)), options_(other.options_) {}
EventReference::EventReference(const EventReference& other, EventSearchOptions options)
    : BasicElementReference(other), options_(options) {}
EventReference::EventReference(EventReference&& other, EventSearchOptions options) noexcept
    : BasicElementReference(std::move(other)), options_(options) {}

EventReference& EventReference::operator=(const EventReference& other) {
    BasicElementReference::operator=(other);
    return *this;
}
EventReference& EventReference::operator=(EventReference&& other) noexcept {
    BasicElementReference::operator=(std::move(other));
    return *this;
}
EventReference& EventReference::operator=(const model::internal::ElementReferenceData& data) {
    BasicElementReference::operator=(data);
    return *this;
}
EventReference& EventReference::operator=(model::internal::ElementReferenceData&& data) {
    BasicElementReference::operator=(std::move(data));
    return *this;
}

EventReference::~EventReference() = default;

EventReference::operator bool() const noexcept {
    return !data().empty();
}

tl::expected<Event, std::wstring> EventReference::event() const {
    return data().event(options_);
}

std::string EventReference::primaryKey() const {
    return data().primaryKey();
}

void EventReference::save(utils::json::encoder::Value& value) const {
    data().save(value);
}
void EventReference::saveTo(utils::json::encoder::Array& array) const {
    data().saveTo(array);
}
void EventReference::saveTo(utils::json::encoder::Object& object, std::string_view name) const {
    data().saveTo(object, name);
}

EventReference::ImportReference::ImportReference() = default;
EventReference::ImportReference::ImportReference(const EventReference& reference)
    : data_(reference.data()) {}
EventReference::ImportReference::ImportReference(
    model::internal::ElementReferenceData&& data) noexcept
    : data_(std::move(data)) {}
EventReference::ImportReference::ImportReference(const ImportReference&) = default;
EventReference::ImportReference::ImportReference(ImportReference&&) noexcept = default;
EventReference::ImportReference&
EventReference::ImportReference::operator=(const ImportReference&) = default;
EventReference::ImportReference&
EventReference::ImportReference::operator=(ImportReference&&) noexcept = default;
EventReference::ImportReference::~ImportReference() = default;

EventReference::ImportReference
EventReference::ImportReference::makeInternalReference(std::string_view elementKey,
                                                       std::string_view memberName) {
    return ImportReference(
        model::internal::ElementReferenceData::makeImportReference(elementKey, memberName));
}

EventReference::ImportReference::operator bool() const noexcept {
    return !data_.empty();
}

void EventReference::ImportReference::save(utils::json::encoder::Value& value) const {
    data_.save(value);
}
void EventReference::ImportReference::saveTo(utils::json::encoder::Array& array) const {
    data_.saveTo(array);
}
void EventReference::ImportReference::saveTo(utils::json::encoder::Object& object,
                                             std::string_view name) const {
    data_.saveTo(object, name);
}

} // namespace corvane::workbench::process
