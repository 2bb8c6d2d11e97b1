#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/json/encoder/detail/Writer.hpp>

namespace corvane::utils::json::encoder {

/// An array that is being written. A small handle, valid while its Document lives.
class CORVANE_UTILS_EXPORT Array {
public:
    /// Adds an element and returns its value, to be written next. Completes everything that is
    /// still open inside the array.
    /// @throws std::logic_error when the array is complete.
    Value addElement() { return Value(*writer_, writer_->addElement(container_)); }

private:
    friend class Value;

    Array(detail::Writer& writer, detail::Writer::Container container) noexcept
        : writer_(&writer), container_(container) {}

    detail::Writer* writer_;
    detail::Writer::Container container_;
};

inline Array Value::writeArray() {
    return Array(*writer_, writer_->open(ticket_, '[', ']'));
}

} // namespace corvane::utils::json::encoder
