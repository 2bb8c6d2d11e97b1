#pragma once

#include <array>
#include <streambuf>
#include <string_view>

namespace corvane::skillbench {

/// Collects what a program prints and passes it on in whole lines, so that whatever ends the
/// program does not leave half a line behind. Only a flush, and a line that is longer than the
/// buffer, pass on less.
class LineBuffer final : public std::streambuf {
public:
    /// Writes everything, without allocating or throwing; returns whether it could.
    using Write = bool (*)(std::string_view) noexcept;

    explicit LineBuffer(Write write);

    /// Passes on the whole lines. May be called in the handler of a signal.
    void writeLines() noexcept;

private:
    int_type overflow(int_type character) override;
    int sync() override;

    /// Passes the first characters on and keeps the others.
    bool writeFirst(std::size_t count) noexcept;

    Write write_;
    std::array<char, 65536> buffer_;
};

} // namespace corvane::skillbench
