#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/utils/json/encoder/detail/Levels.hpp>
#include <corvane/utils/string/BasicStaticString.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::utils::json::encoder::detail {

/// What a document that is being written and the handles into it share: where it goes to, what is
/// open, and what may be written next. Nothing here is called but through them.
///
/// Every value has an even ticket of its own; the object or array that it becomes has the odd one
/// behind it. Throws std::logic_error for the ticket of what is complete.
class CORVANE_UTILS_EXPORT Writer {
public:
    using Ticket = std::uint64_t;

    struct Container {
        std::size_t depth;
        Ticket ticket;
    };

    static constexpr Ticket kRoot = 2;

    /// The stream must outlive the writer.
    Writer(io::OutputStream<char>& stream, bool isIndented);
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer();

    /// Adds a member or an element, once everything that is open inside the container is closed;
    /// returns the ticket of its value.
    [[nodiscard]] Ticket addMember(Container object, std::string_view name);
    [[nodiscard]] Ticket addElement(Container array) {
        if (expected_ != array.ticket || isIndented_) [[unlikely]] {
            enter(array);
        }
        return expectValue();
    }

    /// Makes the value an object or array, by the characters that it begins and ends with.
    [[nodiscard]] Container open(Ticket value, char begin, char end);
    void writeString(Ticket value, std::string_view text);
    /// Writes a text that is neither quoted nor escaped.
    void writePlain(Ticket value, std::string_view text);
    template <std::size_t Capacity>
    void writePlain(Ticket value, const string::BasicStaticString<char, Capacity>& text) {
        char* const room = stream_.prepare(1 + Capacity);
        if (room == nullptr) [[unlikely]] {
            return writePlain(value, text.view());
        }
        take(value);
        const std::size_t comma = putDueComma(room);
        commaIsDue_ = true;
        // All of the capacity: a copy of constant length takes no call and no loop.
        std::char_traits<char>::copy(room + comma, text.data(), Capacity);
        stream_.commit(comma + text.size());
    }

    /// Closes everything that is open, and flushes the stream.
    void close();

private:
    [[nodiscard]] static bool isValue(Ticket ticket) noexcept {
        return ticket != 0 && ticket % 2 == 0;
    }

    [[nodiscard]] Ticket expectValue() noexcept {
        lastValue_ += 2;
        return expected_ = lastValue_;
    }
    /// Begins to write a value.
    void take(Ticket value) {
        if (expected_ != value) {
            throwWritten();
        }
        expected_ = levels_.innermost().ticket;
    }
    /// Returns how many characters it has written. @pre There is room for one.
    [[nodiscard]] std::size_t putDueComma(char* room) const noexcept {
        *room = ',';
        return commaIsDue_ ? 1 : 0;
    }
    [[noreturn]] static void throwWritten();
    [[noreturn]] static void throwComplete();

    [[nodiscard]] Ticket addMemberSlowly(std::string_view name);
    void writeStringSlowly(std::string_view text);
    [[nodiscard]] Container openSlowly(Ticket value, char begin, char end);
    [[nodiscard]] Container addLevel(Ticket value, char end);
    /// Has something be added to the container next, with all inside it closed.
    void enter(Container container);
    /// @pre Something is to be closed, or the document ends.
    void closeDownTo(std::size_t depth);
    void closeSlowly(std::size_t depth);
    /// As putDueComma() does, whether there is room or not.
    void writeDueComma();
    void writeLineBreak();

    io::OutputStream<char>& stream_;
    Levels levels_;
    /// What may be used next without closing anything: the value that is to be written, else the
    /// innermost container.
    Ticket expected_ = kRoot;
    Ticket lastValue_ = kRoot;
    /// Whether the last thing written was the end of a value.
    bool commaIsDue_ = false;
    bool isIndented_;
};

} // namespace corvane::utils::json::encoder::detail
