#include <corvane/workbench/i18n/translate.hpp>

#include <corvane/utils/string/detail/Utf16CodeUnitCounter.hpp>
#include <corvane/utils/string/detail/Utf16Encoder.hpp>
#include <corvane/utils/string/detail/Utf8Decoder.hpp>

namespace corvane::workbench::i18n {

namespace {

template <class Sink>
void decode(std::string_view text, Sink& sink) {
    utils::string::detail::Utf8Decoder decoder;
    for (const char byte : text) {
        decoder.feed(byte, sink);
    }
    decoder.finish(sink);
}

} // namespace

std::wstring translate(std::string_view, std::string_view text) {
    utils::string::detail::Utf16CodeUnitCounter counter;
    decode(text, counter);

    std::wstring result;
    result.reserve(counter.count());
    utils::string::detail::Utf16Encoder encoder;
    const auto append = [&](char32_t character) {
        encoder.encode(character, [&](wchar_t codeUnit) { result.push_back(codeUnit); });
    };
    decode(text, append);
    return result;
}

} // namespace corvane::workbench::i18n
