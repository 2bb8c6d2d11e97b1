#include <corvane/utils/json/encoder/Object.hpp>

#include <corvane/utils/json/encoder/Document.hpp>

namespace corvane::utils::json::encoder {

Value Object::addMember(std::string_view name) {
    return document_->addMember(depth_, ticket_, name);
}

} // namespace corvane::utils::json::encoder
