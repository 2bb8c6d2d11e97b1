#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/encoder/detail/Writer.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <cstddef>
#include <string_view>

namespace corvane::utils::json::encoder {

class Array;
class Document;
class Object;

/// A place in a JSON document where one value is to be written, once. A value that is never
/// written becomes null. A small handle, valid while its Document lives.
class CORVANE_UTILS_EXPORT Value {
public:
    /// Makes the value an object. It is complete when something is added to a container around
    /// it, or when the document is closed.
    Object writeObject();
    /// Makes the value an array, which is completed as an object is.
    Array writeArray();
    /// Writes a string (UTF-8). Only what must be escaped is escaped; malformed UTF-8 is written
    /// as U+FFFD once per maximal subpart, so that the document can always be read.
    void writeString(std::string_view text) { writer_->writeString(ticket_, text); }
    /// Writes a number as it stands. @pre number is a number by the rules of JSON.
    /// @{
    void writeNumber(std::string_view number) { writer_->writePlain(ticket_, number); }
    template <std::size_t Capacity>
    void writeNumber(const string::BasicStaticString<char, Capacity>& number) {
        writer_->writePlain(ticket_, number);
    }
    /// @}

    /// Writes the JSON literal.
    /// @{
    void writeBool(bool value);
    void writeNull();
    /// @}

private:
    friend class Array;
    friend class Document;
    friend class Object;

    Value(detail::Writer& writer, detail::Writer::Ticket ticket) noexcept
        : writer_(&writer), ticket_(ticket) {}

    detail::Writer* writer_;
    detail::Writer::Ticket ticket_;
};

} // namespace corvane::utils::json::encoder
