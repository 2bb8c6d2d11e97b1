#pragma once

#include <corvane/utils/io/InputStream.hpp>

#include <string>
#include <string_view>

namespace corvane::utils::io {

/// Reads a text that is in memory. The text is not copied: it must outlive the stream and every
/// view that readRest() gave.
template <class Char>
class MemoryInputStream final : public InputStream<Char> {
public:
    /// Borrows the text.
    explicit MemoryInputStream(std::basic_string_view<Char> text) noexcept {
        this->setBuffer(text);
    }

    /// "in-memory text".
    [[nodiscard]] std::string description() const override { return "in-memory text"; }

private:
    bool refill() override { return false; }
    std::basic_string_view<Char> readRestInto(std::basic_string<Char>&) override {
        const auto rest = this->buffered();
        this->setBuffer({});
        return rest;
    }
};

} // namespace corvane::utils::io
