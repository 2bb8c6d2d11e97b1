#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/json/encoder/detail/Writer.hpp>

namespace corvane::utils::json::encoder {

/// Writes a JSON text to a stream as it is described, without building it first. The classes
/// Value, Object and Array are small handles into the document; they are valid while it lives.
/// Writing through a handle whose value or container is complete throws std::logic_error. A
/// document is used by one thread at a time.
class CORVANE_UTILS_EXPORT Document {
public:
    /// How the text is laid out.
    enum class Format {
        Compact,  ///< no whitespace
        Indented, ///< two spaces a level, a line a member or element, a newline at the end
    };

    /// The stream must outlive the document. The document does not close it.
    explicit Document(io::OutputStream<char>& stream, Format format = Format::Compact);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    /// Writes nothing: a document that was not closed is incomplete.
    ~Document();

    /// The root value, to be written once.
    [[nodiscard]] Value root() noexcept;

    /// Ends all containers that are still open, writes null for a value that was left unwritten,
    /// and flushes the stream. A second call does nothing.
    void close();

private:
    detail::Writer writer_;
    bool isClosed_ = false;
};

} // namespace corvane::utils::json::encoder
