#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/InputStream.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace corvane::utils::json::decoder {

/// A JSON text that has been read and checked (RFC 8259, UTF-8), ready to be walked. Everything
/// that comes out of a document refers to it and is valid while it lives. A document is used by
/// one thread at a time.
class CORVANE_UTILS_EXPORT Document {
public:
    /// How deep arrays and objects may be nested: a walk that recurses stays within the stack.
    static constexpr std::size_t kMaximumDepth = 512;

    /// Reads the rest of the stream. Text that the stream keeps in memory is used in place, so
    /// the stream and its text must outlive the document.
    /// @throws detail::WrappedException of std::runtime_error for the first syntax error of the
    ///         root value, with the text "JSON syntax error (line N): …"; what the stream throws.
    explicit Document(io::InputStream<char>& stream);
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document();

    /// The root value.
    [[nodiscard]] Value& root() noexcept { return root_; }

    /// Ends the reading.
    /// @throws detail::WrappedException of std::runtime_error, text as above, when something
    ///         other than whitespace follows the root value.
    void finish() const;

private:
    std::string storage_;
    detail::Tape tape_;
    std::size_t rootEnd_;
    Value root_;
};

} // namespace corvane::utils::json::decoder
