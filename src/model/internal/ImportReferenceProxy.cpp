#include "ImportReferenceProxy.hpp"

#include <corvane/workbench/i18n/translate.hpp>

namespace corvane::workbench::model::internal {

ElementReferenceData::ImportReferenceProxy::~ImportReferenceProxy() = default;

tl::expected<std::reference_wrapper<Element>, std::wstring>
ElementReferenceData::ImportReferenceProxy::element() const {
    return tl::unexpected(
        i18n::translate("corvane::workbench::model::BasicElementReference",
                        "internal error: unresolved cross reference from import"));
}

std::size_t ElementReferenceData::ImportReferenceProxy::referenceCount() const {
    return 0;
}

AbstractCrossReferenceProxy::Attachment*
ElementReferenceData::ImportReferenceProxy::attach(BasicElementReference&) {
    return nullptr;
}

void ElementReferenceData::ImportReferenceProxy::detach(Attachment*) noexcept {}

std::string ElementReferenceData::ImportReferenceProxy::primaryKey() const {
    return {};
}

void ElementReferenceData::ImportReferenceProxy::save(
    utils::json::encoder::Value& value, std::string_view suffix,
    std::optional<std::string_view> memberName) const {
    writeKey(value, kPrefix, suffix, memberName);
}

} // namespace corvane::workbench::model::internal
