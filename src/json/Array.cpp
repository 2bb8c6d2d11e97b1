#include <corvane/workbench/json/Array.hpp>

#include "internal/text.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <utility>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

Array::Array() noexcept = default;
Array::Array(const Array& other) = default;
Array::Array(Array&& other) noexcept = default;
Array::~Array() = default;

Array& Array::operator=(const Array& other) = default;
Array& Array::operator=(Array&& other) noexcept = default;

bool Array::empty() const noexcept {
    return elements_.empty();
}
std::size_t Array::size() const noexcept {
    return elements_.size();
}
Array::iterator Array::begin() noexcept {
    return elements_.begin();
}
Array::iterator Array::end() noexcept {
    return elements_.end();
}
Array::const_iterator Array::begin() const noexcept {
    return elements_.begin();
}
Array::const_iterator Array::end() const noexcept {
    return elements_.end();
}

Value& Array::operator[](std::size_t index) noexcept {
    return elements_[index];
}
const Value& Array::operator[](std::size_t index) const noexcept {
    return elements_[index];
}

void Array::reserve(std::size_t size) {
    elements_.reserve(size);
}

Value& Array::append(Value value) {
    return elements_.emplace_back(std::move(value));
}

Array::iterator Array::erase(const_iterator element) {
    return elements_.erase(element);
}

void Array::clear() noexcept {
    elements_.clear();
}

bool Array::operator==(const Array& other) const {
    if (elements_.size() != other.elements_.size()) {
        return false;
    }
    for (std::size_t index = 0; index < elements_.size(); ++index) {
        if (!(elements_[index] == other.elements_[index])) {
            return false;
        }
    }
    return true;
}

void Array::decode(decoder::Value& source, DecodingOptions options) {
    decoder::Array array = source.asArray();
    decode(array, options);
}

void Array::decode(decoder::Array& source, DecodingOptions) {
    Array decoded;
    decoded.decodeElements(source);
    *this = std::move(decoded);
}

tl::expected<Array, std::wstring> Array::fromString(std::string_view text,
                                                    DecodingOptions options) {
    return internal::fromText<Array>(
        text, [options](Array& array, decoder::Value& root) { array.decode(root, options); });
}

std::string Array::toString(encoder::Document::Format format) const {
    return internal::toText(*this, format);
}

} // namespace corvane::workbench::json
