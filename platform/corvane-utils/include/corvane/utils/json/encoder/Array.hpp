// An array that is being written. A small handle, valid while its Document lives.
#pragma once

#include <cstddef>
#include <cstdint>

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

namespace corvane::utils::json::encoder {

class CORVANE_UTILS_EXPORT Array {
public:
    /// Adds an element and returns its value, to be written next. Completes everything that is
    /// still open inside the array.
    /// @throws std::logic_error when the array is complete.
    Value addElement();

private:
    friend class Value;

    Array(Document& document, std::size_t depth, std::uint64_t ticket) noexcept
        : document_(&document), depth_(depth), ticket_(ticket) {}

    Document* document_;
    std::size_t depth_;
    std::uint64_t ticket_;
};

} // namespace corvane::utils::json::encoder
