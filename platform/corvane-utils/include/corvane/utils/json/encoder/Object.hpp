#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/json/encoder/detail/Writer.hpp>

#include <string_view>

namespace corvane::utils::json::encoder {

/// An object that is being written. A small handle, valid while its Document lives.
class CORVANE_UTILS_EXPORT Object {
public:
    /// Adds a member and returns its value, to be written next. Completes everything that is
    /// still open inside the object. Does not check whether the name was used before.
    /// @throws std::logic_error when the object is complete.
    Value addMember(std::string_view name) {
        return Value(*writer_, writer_->addMember(container_, name));
    }

private:
    friend class Value;

    Object(detail::Writer& writer, detail::Writer::Container container) noexcept
        : writer_(&writer), container_(container) {}

    detail::Writer* writer_;
    detail::Writer::Container container_;
};

inline Object Value::writeObject() {
    return Object(*writer_, writer_->open(ticket_, '{', '}'));
}

} // namespace corvane::utils::json::encoder
