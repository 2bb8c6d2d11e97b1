// An output stream into a string, with a buffer so small that every text crosses its end.
#pragma once

#include <corvane/utils/io/OutputStream.hpp>

#include <array>
#include <string>

namespace corvane::tests {

class TextStream : public utils::io::OutputStream<char> {
public:
    [[nodiscard]] std::string description() const override { return "text"; }

    /// What has been flushed.
    std::string text;

private:
    void flushBuffer() override {
        text.append(bufferBegin(), bufferPosition());
        setBuffer(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

    std::array<char, 7> buffer_{};
};

} // namespace corvane::tests
