#pragma once

#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/workbench/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::workbench::json::internal {

/// Collects what is written in a string that it owns. The string itself is the stream's buffer, so
/// nothing is copied on the way.
class CORVANE_WORKBENCH_EXPORT StringOutputStream final : public utils::io::OutputStream<char> {
public:
    StringOutputStream();
    ~StringOutputStream() override;

    /// "in-memory text string".
    [[nodiscard]] std::string description() const override;

    /// Everything written so far, which leaves the stream: further writing begins an empty text.
    [[nodiscard]] std::string take();

private:
    /// Doubles the string's length once it is full.
    void flushBuffer() override;
    void writeLarge(std::string_view text) override;

    [[nodiscard]] std::size_t written() const noexcept;
    /// Lets the whole string be the buffer, with the given part of it written already.
    void useStringAsBuffer(std::size_t written) noexcept;

    std::string text_;
};

} // namespace corvane::workbench::json::internal
