#include <corvane/utils/json/encoder/Value.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>

namespace corvane::utils::json::encoder {

namespace {

using Word = string::BasicStaticString<char, 5>;

constexpr Word kTrue("true");
constexpr Word kFalse("false");
constexpr Word kNull("null");

} // namespace

Object Value::writeObject() {
    return Object(*writer_, writer_->openObject(ticket_));
}

Array Value::writeArray() {
    return Array(*writer_, writer_->openArray(ticket_));
}

void Value::writeBool(bool value) {
    writer_->writePlain(ticket_, value ? kTrue : kFalse);
}

void Value::writeNull() {
    writer_->writePlain(ticket_, kNull);
}

} // namespace corvane::utils::json::encoder
