#include <corvane/workbench/json/Object.hpp>

#include "internal/text.hpp"
#include "internal/throwAt.hpp"
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/json/Value.hpp>

#include <algorithm>
#include <format>
#include <stdexcept>
#include <utility>

namespace corvane::workbench::json {

namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

constinit const Object::CorvaneElementFilter Object::kCorvaneElementFilter{};

bool Object::CorvaneElementFilter::operator()(const decoder::Name& name, decoder::Value&) const {
    const std::string_view text = name.text();
    if (text == "name" || text == "UUID" || text == "ACL" || text == "children") {
        internal::throwAt(name.location(),
                          std::runtime_error(std::format("reserved member name \"{}\"", text)));
    }
    return false;
}

Object::Object() noexcept = default;
Object::Object(const Object& other) = default;
Object::Object(Object&& other) noexcept = default;
Object::~Object() = default;

Object& Object::operator=(const Object& other) = default;
Object& Object::operator=(Object&& other) noexcept = default;

bool Object::empty() const noexcept {
    return members_.empty();
}
std::size_t Object::size() const noexcept {
    return members_.size();
}
Object::iterator Object::begin() noexcept {
    return members_.begin();
}
Object::iterator Object::end() noexcept {
    return members_.end();
}
Object::const_iterator Object::begin() const noexcept {
    return members_.begin();
}
Object::const_iterator Object::end() const noexcept {
    return members_.end();
}

Value* Object::find(std::string_view name) noexcept {
    const auto member = std::ranges::find(members_, name, &Member::first);
    return member == members_.end() ? nullptr : &member->second;
}

const Value* Object::find(std::string_view name) const noexcept {
    const auto member = std::ranges::find(members_, name, &Member::first);
    return member == members_.end() ? nullptr : &member->second;
}

void Object::reserve(std::size_t size) {
    members_.reserve(size);
}

Value& Object::append(std::string name, Value value) {
    return members_.emplace_back(std::move(name), std::move(value)).second;
}

bool Object::erase(std::string_view name) {
    const auto member = std::ranges::find(members_, name, &Member::first);
    if (member == members_.end()) {
        return false;
    }
    members_.erase(member);
    return true;
}

Object::iterator Object::erase(const_iterator member) {
    return members_.erase(member);
}

void Object::clear() noexcept {
    members_.clear();
}

bool Object::operator==(const Object& other) const {
    if (members_.size() != other.members_.size()) {
        return false;
    }
    for (std::size_t index = 0; index < members_.size(); ++index) {
        const Member& left = members_[index];
        const Member& right = other.members_[index];
        if (left.first != right.first || !(left.second == right.second)) {
            return false;
        }
    }
    return true;
}

void Object::decode(decoder::Value& source, DecodingOptions options) {
    decoder::Object object = source.asObject();
    decode(object, options);
}

void Object::decode(decoder::Object& source, DecodingOptions options) {
    Object decoded;
    decoded.decodeMembers(source, options);
    *this = std::move(decoded);
}

void Object::decodeInternal(decoder::Value& source, MemberFilter filter, DecodingOptions options) {
    decoder::Object object = source.asObject();
    decodeInternal(object, filter, options);
}

void Object::decodeInternal(decoder::Object& source, MemberFilter filter, DecodingOptions options) {
    const decoder::Object::FilterScope scope(source, filter);
    decode(source, options);
}

tl::expected<Object, std::wstring> Object::fromString(std::string_view text,
                                                      DecodingOptions options) {
    return internal::fromText<Object>(
        text, [options](Object& object, decoder::Value& root) { object.decode(root, options); });
}

tl::expected<Object, std::wstring>
Object::fromStringInternal(std::string_view text, MemberFilter filter, DecodingOptions options) {
    return internal::fromText<Object>(text, [&](Object& object, decoder::Value& root) {
        object.decodeInternal(root, filter, options);
    });
}

std::string Object::toString(encoder::Document::Format format) const {
    return internal::toText(*this, format);
}

} // namespace corvane::workbench::json
