#include "ReferenceProxy.hpp"

#include "ReferenceUpdates.hpp"
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/i18n/translate.hpp>

#include <format>
#include <utility>

namespace corvane::workbench::host {

void ReferenceProxy::retire(std::string lastKey) noexcept {
    node_ = nullptr;
    lastKey_ = std::move(lastKey);
}

tl::expected<std::reference_wrapper<model::Element>, std::wstring> ReferenceProxy::element() const {
    if (node_ == nullptr) {
        const std::wstring key = utils::string::toWide(lastKey_);
        return tl::unexpected(
            std::vformat(i18n::translate("corvane::workbench::host::ReferenceProxy",
                                         "the element “{}” does not exist"),
                         std::make_wformat_args(key)));
    }
    return std::ref<model::Element>(*node_);
}

model::internal::AbstractCrossReferenceProxy::Attachment*
ReferenceProxy::attach(model::internal::BasicElementReference& reference) {
    Registration& registration = registrations_.emplace_back();
    registration.reference = &reference;
    registration.position = std::prev(registrations_.end());
    return &registration;
}

void ReferenceProxy::detach(Attachment* token) noexcept {
    auto* registration = static_cast<Registration*>(token);
    if (registration->updates != nullptr) {
        registration->updates->forget(registration->updateIndex);
    }
    registrations_.erase(registration->position);
}

std::string ReferenceProxy::primaryKey() const {
    return node_ != nullptr ? node_->primaryKey() : lastKey_;
}

void ReferenceProxy::save(utils::json::encoder::Value& value, std::string_view suffix,
                          std::optional<std::string_view> memberName) const {
    writeKey(value, primaryKey(), suffix, memberName);
}

} // namespace corvane::workbench::host
