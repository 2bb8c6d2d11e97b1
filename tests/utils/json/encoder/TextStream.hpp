#pragma once

#include <corvane/utils/io/OutputStream.hpp>

#include <cstddef>
#include <string>

namespace corvane::tests {

/// An output stream into a string, by default with a buffer so small that every text crosses its
/// end.
class TextStream : public utils::io::OutputStream<char> {
public:
    explicit TextStream(std::size_t bufferSize = 7) : buffer_(bufferSize, '\0') {}

    [[nodiscard]] std::string description() const override { return "text"; }

    /// What has been flushed.
    std::string text;

private:
    void flushBuffer() override {
        text.append(bufferBegin(), bufferPosition());
        setBuffer(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

    std::string buffer_;
};

} // namespace corvane::tests
