#include <corvane/utils/json/decoder/Object.hpp>

#include <algorithm>

namespace corvane::utils::json::decoder {

Object::~Object() = default;

Location Object::location() const {
    return tape_->locate((*tape_)[index_].offset);
}

bool Object::isConsumed() {
    return std::any_of(filters_.begin(), filters_.end(),
                       [this](const Filter& filter) { return filter(name_, value_); });
}

} // namespace corvane::utils::json::decoder
