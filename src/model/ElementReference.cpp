#include <corvane/workbench/model/ElementReference.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <utility>

namespace corvane::workbench::model {

ElementReference::ElementReference() noexcept = default;
ElementReference::ElementReference(const internal::ElementReferenceData& data)
    : BasicElementReference(data) {}
ElementReference::ElementReference(internal::ElementReferenceData&& data)
    : BasicElementReference(std::move(data)) {}
ElementReference::ElementReference(const ElementReference&) = default;
ElementReference::ElementReference(ElementReference&&) noexcept = default;

ElementReference& ElementReference::operator=(const ElementReference& other) {
    BasicElementReference::operator=(other);
    return *this;
}
ElementReference& ElementReference::operator=(ElementReference&& other) noexcept {
    BasicElementReference::operator=(std::move(other));
    return *this;
}
ElementReference& ElementReference::operator=(const internal::ElementReferenceData& data) {
    BasicElementReference::operator=(data);
    return *this;
}
ElementReference& ElementReference::operator=(internal::ElementReferenceData&& data) {
    BasicElementReference::operator=(std::move(data));
    return *this;
}

ElementReference::~ElementReference() = default;

ElementReference::operator bool() const noexcept {
    return !data().empty();
}

tl::expected<std::reference_wrapper<Element>, std::wstring> ElementReference::element() const {
    return data().element();
}

std::string ElementReference::primaryKey() const {
    return data().primaryKey();
}

void ElementReference::save(utils::json::encoder::Value& value) const {
    data().save(value);
}
void ElementReference::saveTo(utils::json::encoder::Array& array) const {
    data().saveTo(array);
}
void ElementReference::saveTo(utils::json::encoder::Object& object, std::string_view name) const {
    data().saveTo(object, name);
}

ElementReference::ImportReference::ImportReference() = default;
ElementReference::ImportReference::ImportReference(const ElementReference& reference)
    : data_(reference.data()) {}
ElementReference::ImportReference::ImportReference(internal::ElementReferenceData&& data) noexcept
    : data_(std::move(data)) {}
ElementReference::ImportReference::ImportReference(const ImportReference&) = default;
ElementReference::ImportReference::ImportReference(ImportReference&&) noexcept = default;
ElementReference::ImportReference&
ElementReference::ImportReference::operator=(const ImportReference&) = default;
ElementReference::ImportReference&
ElementReference::ImportReference::operator=(ImportReference&&) noexcept = default;
ElementReference::ImportReference::~ImportReference() = default;

ElementReference::ImportReference
ElementReference::ImportReference::makeInternalReference(std::string_view elementKey) {
    return ImportReference(internal::ElementReferenceData::makeImportReference(elementKey));
}

ElementReference::ImportReference::operator bool() const noexcept {
    return !data_.empty();
}

void ElementReference::ImportReference::save(utils::json::encoder::Value& value) const {
    data_.save(value);
}
void ElementReference::ImportReference::saveTo(utils::json::encoder::Array& array) const {
    data_.saveTo(array);
}
void ElementReference::ImportReference::saveTo(utils::json::encoder::Object& object,
                                               std::string_view name) const {
    data_.saveTo(object, name);
}

} // namespace corvane::workbench::model
