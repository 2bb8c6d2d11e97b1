#include <corvane/workbench/config/Context.hpp>

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/String.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/internal/ReferenceKeyListener.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace corvane::workbench::config {

namespace {

/// The place is worked out only when there is somebody who wants to know it.
template <class Place>
void tellListener(std::string_view key, Place&& place) {
    if (auto* listener = internal::ReferenceKeyListener::newest()) {
        listener->keyRead(key, place());
    }
}

} // namespace

Context::Context() = default;
Context::Context(const Context&) = default;
Context& Context::operator=(const Context&) = default;
Context::~Context() = default;

void Context::resolve(ReferenceKey key, std::reference_wrapper<model::ElementReference> reference) {
    resolveElementReference(std::move(key), reference, {});
}

void Context::resolve(ReferenceKey key,
                      std::reference_wrapper<model::AttributeReference> reference) {
    resolveMember(std::move(key), reference.get());
}

void Context::resolve(ReferenceKey key, std::reference_wrapper<process::EventReference> reference) {
    resolveMember(std::move(key), reference.get());
}

void Context::resolve(ReferenceKey key, std::reference_wrapper<process::TaskReference> reference) {
    resolveMember(std::move(key), reference.get());
}

void Context::resolveMember(ReferenceKey&& key, model::internal::BasicElementReference& reference) {
    resolveMemberReference(std::move(key), reference, {});
}

Context::ReferenceKey::ReferenceKey(utils::json::decoder::Value& value) {
    auto string = value.asString();
    text_.assign(string.begin(), string.end());
    tellListener(text_, [&] { return value.location(); });
}
Context::ReferenceKey::ReferenceKey(const utils::json::decoder::Name& name) : text_(name.text()) {
    tellListener(text_, [&] { return name.location(); });
}
Context::ReferenceKey::ReferenceKey(std::string&& text,
                                    const utils::json::decoder::Location& location)
    : text_(std::move(text)) {
    tellListener(text_, [&] { return location; });
}
Context::ReferenceKey::ReferenceKey(std::string_view text, WithoutLocationTag) : text_(text) {}

Context::ReferenceKey::ReferenceKey(const ReferenceKey&) = default;
Context::ReferenceKey::ReferenceKey(ReferenceKey&&) noexcept = default;
Context::ReferenceKey& Context::ReferenceKey::operator=(const ReferenceKey&) = default;
Context::ReferenceKey& Context::ReferenceKey::operator=(ReferenceKey&&) noexcept = default;
Context::ReferenceKey::~ReferenceKey() = default;

} // namespace corvane::workbench::config
