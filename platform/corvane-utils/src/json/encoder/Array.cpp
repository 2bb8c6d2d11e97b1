#include <corvane/utils/json/encoder/Array.hpp>

#include <corvane/utils/json/encoder/Document.hpp>

namespace corvane::utils::json::encoder {

Value Array::addElement() {
    return document_->addElement(depth_, ticket_);
}

} // namespace corvane::utils::json::encoder
