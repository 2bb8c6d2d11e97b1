// An object that is being written. A small handle, valid while its Document lives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

namespace corvane::utils::json::encoder {

class CORVANE_UTILS_EXPORT Object {
public:
    /// Adds a member and returns its value, to be written next. Completes everything that is
    /// still open inside the object. Does not check whether the name was used before.
    /// @throws std::logic_error when the object is complete.
    Value addMember(std::string_view name);

private:
    friend class Value;

    Object(Document& document, std::size_t depth, std::uint64_t ticket) noexcept
        : document_(&document), depth_(depth), ticket_(ticket) {}

    Document* document_;
    std::size_t depth_;
    std::uint64_t ticket_;
};

} // namespace corvane::utils::json::encoder
