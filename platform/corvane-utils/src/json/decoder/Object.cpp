#include <corvane/utils/json/decoder/Object.hpp>

namespace corvane::utils::json::decoder {

Location Object::location() const {
    return tape_->location(index_);
}

bool Object::isConsumed() {
    // A filter may add others, which the next member is the first to meet.
    const std::size_t count = filters_.size();
    for (std::size_t index = 0; index != count; ++index) {
        const Filter filter = filters_[index];
        if (filter(name_, value_)) {
            return true;
        }
    }
    return false;
}

} // namespace corvane::utils::json::decoder
