// Decodes any bytes as UTF-8, in one piece and byte by byte, with ICU as the judge, and takes any
// code units as UTF-16.
#include "promise.hpp"
#include <corvane/utils/string/detail/Utf16CodeUnitCounter.hpp>
#include <corvane/utils/string/detail/Utf16Encoder.hpp>
#include <corvane/utils/string/detail/Utf8Decoder.hpp>
#include <corvane/utils/string/transcode.hpp>

#include <unicode/ustring.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace detail = corvane::utils::string::detail;
using corvane::fuzz::promise;
using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;

template <class Sink>
void decode(std::string_view utf8, Sink&& sink) {
    detail::Utf8Decoder decoder;
    for (const char byte : utf8) {
        decoder.feed(byte, sink);
    }
    decoder.finish(sink);
}

std::wstring judged(std::string_view utf8) {
    std::vector<char16_t> units(utf8.size() + 1);
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t length = 0;
    u_strFromUTF8WithSub(units.data(), static_cast<std::int32_t>(units.size()), &length,
                         utf8.data(), static_cast<std::int32_t>(utf8.size()), 0xFFFD, nullptr,
                         &error);
    promise(U_SUCCESS(error), "the judge takes any bytes");
    return {units.begin(), units.begin() + length};
}

void checkUtf8(std::string_view utf8) {
    const std::wstring wide = toWide(utf8);
    promise(wide == judged(utf8), "the whole text is decoded as the judge does");

    std::wstring pieces;
    const detail::Utf16Encoder encoder;
    decode(utf8, [&](char32_t character) {
        encoder.encode(character, [&pieces](wchar_t unit) { pieces.push_back(unit); });
    });
    promise(pieces == wide, "byte by byte gives the same");

    detail::Utf16CodeUnitCounter counter;
    decode(utf8, [&counter](char32_t character) { counter(character); });
    promise(counter.count() == wide.size(), "the code units are counted");

    promise(toWide(toUtf8(wide)) == wide, "decoded text survives there and back");
}

void checkUtf16(std::string_view bytes) {
    std::wstring wide(bytes.size() / 2, L'\0');
    for (std::size_t index = 0; index != wide.size(); ++index) {
        wide[index] = static_cast<wchar_t>(static_cast<unsigned char>(bytes[2 * index]) * 256 +
                                           static_cast<unsigned char>(bytes[2 * index + 1]));
    }
    const std::string utf8 = toUtf8(wide);
    promise(toUtf8(toWide(utf8)) == utf8, "encoded text is well-formed");
    promise(toWide(utf8).size() == wide.size(), "each lone unit gives one replacement");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    checkUtf8(bytes);
    checkUtf16(bytes);
    return 0;
}
