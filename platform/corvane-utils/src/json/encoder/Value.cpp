#include <corvane/utils/json/encoder/Value.hpp>

namespace corvane::utils::json::encoder {

namespace {

using Word = string::BasicStaticString<char, 5>;

constexpr Word kTrue("true");
constexpr Word kFalse("false");
constexpr Word kNull("null");

} // namespace

void Value::writeBool(bool value) {
    writer_->writePlain(ticket_, value ? kTrue : kFalse);
}

void Value::writeNull() {
    writer_->writePlain(ticket_, kNull);
}

} // namespace corvane::utils::json::encoder
