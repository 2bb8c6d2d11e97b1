// Writes a JSON text to a stream as it is described, without building it first. The classes
// Value, Object and Array are small handles into the document; they are valid while it lives.
// Writing through a handle whose value or container is complete throws std::logic_error. A
// document is used by one thread at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

namespace corvane::utils::json::encoder {

class CORVANE_UTILS_EXPORT Document {
public:
    enum class Format {
        Compact,  ///< no blank at all
        Indented, ///< two blanks a level, a line a member or element, a newline at the end
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
    friend class Array;
    friend class Object;
    friend class Value;

    /// An object or array that is still open, known by the ticket of the value that it is.
    struct Level {
        std::uint64_t ticket;
        bool isObject;
        bool isEmpty;
    };

    [[nodiscard]] Value addMember(std::size_t depth, std::uint64_t ticket, std::string_view name);
    [[nodiscard]] Value addElement(std::size_t depth, std::uint64_t ticket);
    void takeValue(std::uint64_t ticket);
    void open(std::uint64_t ticket, bool isObject);
    /// The container that something is to be added to, with all inside it closed.
    [[nodiscard]] Level& enter(std::size_t depth, std::uint64_t ticket);
    void separate(Level& level);
    [[nodiscard]] Value expectValue() noexcept;
    void closeDownTo(std::size_t depth);
    void writeLineBreak();
    void writePlain(std::string_view text);
    void writeQuoted(std::string_view text);

    io::OutputStream<char>& stream_;
    Format format_;
    std::vector<Level> levels_;
    /// The value that is to be written next; 0 when there is none.
    std::uint64_t pending_;
    std::uint64_t lastTicket_;
    bool isClosed_ = false;
};

} // namespace corvane::utils::json::encoder
