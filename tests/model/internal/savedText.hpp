#pragma once

// The JSON text that something writes.

#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::tests {

class StringStream final : public utils::io::OutputStream<char> {
public:
    std::string description() const override { return "a string"; }
    const std::string& text() const { return text_; }

private:
    void flushBuffer() override {
        text_.append(bufferBegin(), bufferPosition());
        setBuffer(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

    std::array<char, 256> buffer_{};
    std::string text_;
};

/// What `write` makes of an encoder value that stands at the root of a document.
template <class Write>
std::string written(Write&& write) {
    using utils::json::encoder::Document;
    StringStream stream;
    Document document(stream, Document::Format::Compact);
    utils::json::encoder::Value root = document.root();
    write(root);
    document.close();
    return stream.text();
}

template <class Saved>
std::string savedText(const Saved& saved) {
    return written([&](utils::json::encoder::Value& value) { saved.save(value); });
}

template <class Saved>
std::string savedArray(const Saved& saved) {
    return written([&](utils::json::encoder::Value& value) {
        utils::json::encoder::Array array = value.writeArray();
        saved.saveTo(array);
    });
}

template <class Saved>
std::string savedObject(const Saved& saved, std::string_view name) {
    return written([&](utils::json::encoder::Value& value) {
        utils::json::encoder::Object object = value.writeObject();
        saved.saveTo(object, name);
    });
}

} // namespace corvane::tests
