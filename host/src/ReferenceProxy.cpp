#include "ReferenceProxy.hpp"

#include "ReferenceUpdates.hpp"

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/i18n/translate.hpp>

#include <format>
#include <utility>

namespace corvane::workbench::host {

void ReferenceProxy::retire(std::string lastKey) noexcept {
    _node = nullptr;
    _lastKey = std::move(lastKey);
}

tl::expected<std::reference_wrapper<model::Element>, std::wstring> ReferenceProxy::element() const {
    if (_node == nullptr) {
        const std::wstring key = corvane::utils::string::toWide(_lastKey);
        return tl::unexpected(
            std::vformat(i18n::translate("corvane::workbench::host::ReferenceProxy",
                                         "the element “{}” does not exist"),
                         std::make_wformat_args(key)));
    }
    return std::ref<model::Element>(*_node);
}

model::internal::AbstractCrossReferenceProxy::Attachment*
ReferenceProxy::attach(model::internal::BasicElementReference& reference) {
    Registration& registration = _registrations.emplace_back();
    registration.reference = &reference;
    registration.position = std::prev(_registrations.end());
    return &registration;
}

void ReferenceProxy::detach(Attachment* token) noexcept {
    auto* registration = static_cast<Registration*>(token);
    if (registration->updates != nullptr) {
        registration->updates->forget(registration->updateIndex);
    }
    _registrations.erase(registration->position);
}

std::string ReferenceProxy::primaryKey() const {
    return _node != nullptr ? _node->primaryKey() : _lastKey;
}

void ReferenceProxy::save(corvane::utils::json::encoder::Value& value, std::string_view suffix,
                          std::optional<std::string_view> memberName) const {
    writeKey(value, primaryKey(), suffix, memberName);
}

} // namespace corvane::workbench::host
