#include <corvane/utils/json/encoder/Value.hpp>

#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>

namespace corvane::utils::json::encoder {

Object Value::writeObject() {
    document_->takeValue(ticket_);
    document_->open(ticket_, true);
    return Object(*document_, document_->levels_.size(), ticket_);
}

Array Value::writeArray() {
    document_->takeValue(ticket_);
    document_->open(ticket_, false);
    return Array(*document_, document_->levels_.size(), ticket_);
}

void Value::writeString(std::string_view text) {
    document_->takeValue(ticket_);
    document_->writeQuoted(text);
}

void Value::writeNumber(std::string_view number) {
    document_->takeValue(ticket_);
    document_->writePlain(number);
}

void Value::writeBool(bool value) {
    document_->takeValue(ticket_);
    document_->stream_.write(value ? std::string_view("true") : std::string_view("false"));
}

void Value::writeNull() {
    document_->takeValue(ticket_);
    document_->stream_.write("null");
}

} // namespace corvane::utils::json::encoder
