#pragma once

// What the three classes of the document model share between themselves and JSON text.

#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/i18n/jsonErrorMessage.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>

#include <tl/expected.hpp>

#include <exception>
#include <string>
#include <string_view>

namespace corvane::workbench::json::internal {

/// Has `decode` fill a T from the root value of the text; the error is a message for the user.
template <class T, class Decode>
tl::expected<T, std::wstring> fromText(std::string_view text, const Decode& decode) {
    tl::expected<T, std::wstring> result;
    try {
        utils::io::MemoryInputStream<char> stream(text);
        utils::json::decoder::Document document(stream);
        decode(*result, document.root());
        document.finish();
    } catch (const std::exception& error) {
        result = tl::make_unexpected(i18n::jsonErrorMessage(error));
    }
    return result;
}

template <class T>
std::string toText(const T& content, utils::json::encoder::Document::Format format) {
    StringOutputStream stream;
    utils::json::encoder::Document document(stream, format);
    utils::json::encoder::Value root = document.root();
    content.encode(root);
    document.close();
    return stream.take();
}

} // namespace corvane::workbench::json::internal
