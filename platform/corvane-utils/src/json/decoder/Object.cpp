#include <corvane/utils/json/decoder/Object.hpp>

#include <algorithm>

namespace corvane::utils::json::decoder {

Location Object::location() const {
    return tape_->location(index_);
}

bool Object::isConsumed() {
    return std::any_of(filters_.begin(), filters_.end(),
                       [this](const Filter& filter) { return filter(name_, value_); });
}

} // namespace corvane::utils::json::decoder
