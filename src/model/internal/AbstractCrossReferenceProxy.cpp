#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>

#include <corvane/utils/json/encoder/Value.hpp>

#include <format>

namespace corvane::workbench::model::internal {

AbstractCrossReferenceProxy::AbstractCrossReferenceProxy() = default;
AbstractCrossReferenceProxy::AbstractCrossReferenceProxy(const AbstractCrossReferenceProxy&) =
    default;
AbstractCrossReferenceProxy&
AbstractCrossReferenceProxy::operator=(const AbstractCrossReferenceProxy&) = default;
AbstractCrossReferenceProxy::~AbstractCrossReferenceProxy() = default;

void AbstractCrossReferenceProxy::writeKey(utils::json::encoder::Value& value,
                                           std::string_view prefix, std::string_view key,
                                           std::optional<std::string_view> memberName) {
    std::string text = std::format("{}{}", prefix, key);
    if (memberName) {
        text += std::format(".{}", *memberName);
    }
    value.writeString(text);
}

} // namespace corvane::workbench::model::internal
