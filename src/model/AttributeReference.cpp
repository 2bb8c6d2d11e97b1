#include <corvane/workbench/model/AttributeReference.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <utility>

namespace corvane::workbench::model {

AttributeReference::AttributeReference() noexcept = default;
AttributeReference::AttributeReference(const internal::ElementReferenceData& data)
    : BasicElementReference(data) {}
AttributeReference::AttributeReference(internal::ElementReferenceData&& data)
    : BasicElementReference(std::move(data)) {}
AttributeReference::AttributeReference(const AttributeReference&) = default;
AttributeReference::AttributeReference(AttributeReference&&) noexcept = default;

AttributeReference& AttributeReference::operator=(const AttributeReference& other) {
    BasicElementReference::operator=(other);
    return *this;
}
AttributeReference& AttributeReference::operator=(AttributeReference&& other) noexcept {
    BasicElementReference::operator=(std::move(other));
    return *this;
}
AttributeReference& AttributeReference::operator=(const internal::ElementReferenceData& data) {
    BasicElementReference::operator=(data);
    return *this;
}
AttributeReference& AttributeReference::operator=(internal::ElementReferenceData&& data) {
    BasicElementReference::operator=(std::move(data));
    return *this;
}

AttributeReference::~AttributeReference() = default;

AttributeReference::operator bool() const noexcept {
    return !data().empty();
}

tl::expected<Attribute, std::wstring> AttributeReference::attribute() const {
    return data().attribute();
}

std::string AttributeReference::primaryKey() const {
    return data().primaryKey();
}

void AttributeReference::save(utils::json::encoder::Value& value) const {
    data().save(value);
}
void AttributeReference::saveTo(utils::json::encoder::Array& array) const {
    data().saveTo(array);
}
void AttributeReference::saveTo(utils::json::encoder::Object& object, std::string_view name) const {
    data().saveTo(object, name);
}

AttributeReference::ImportReference::ImportReference() = default;
AttributeReference::ImportReference::ImportReference(const AttributeReference& reference)
    : data_(reference.data()) {}
AttributeReference::ImportReference::ImportReference(internal::ElementReferenceData&& data) noexcept
    : data_(std::move(data)) {}
AttributeReference::ImportReference::ImportReference(const ImportReference&) = default;
AttributeReference::ImportReference::ImportReference(ImportReference&&) noexcept = default;
AttributeReference::ImportReference&
AttributeReference::ImportReference::operator=(const ImportReference&) = default;
AttributeReference::ImportReference&
AttributeReference::ImportReference::operator=(ImportReference&&) noexcept = default;
AttributeReference::ImportReference::~ImportReference() = default;

AttributeReference::ImportReference
AttributeReference::ImportReference::makeInternalReference(std::string_view elementKey,
                                                           std::string_view memberName) {
    return ImportReference(
        internal::ElementReferenceData::makeImportReference(elementKey, memberName));
}

AttributeReference::ImportReference::operator bool() const noexcept {
    return !data_.empty();
}

void AttributeReference::ImportReference::save(utils::json::encoder::Value& value) const {
    data_.save(value);
}
void AttributeReference::ImportReference::saveTo(utils::json::encoder::Array& array) const {
    data_.saveTo(array);
}
void AttributeReference::ImportReference::saveTo(utils::json::encoder::Object& object,
                                                 std::string_view name) const {
    data_.saveTo(object, name);
}

} // namespace corvane::workbench::model
