// Plays the input as an editing session in a time stamp box and in a UUID box. After every step the
// text must have its canonical shape and the selection must lie within it.
#include "promise.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace corvane::workbench::bindings::functional;
using corvane::fuzz::promise;

constexpr std::wstring_view kDigits = L"0123456789";
constexpr std::wstring_view kHexadecimalDigits = L"0123456789abcdefABCDEF";
constexpr std::wstring_view kTimeStampKeys = L"0123456789-/ :.,+ZzTtx\x0665\x20ac\xd83d";
constexpr std::wstring_view kUuidKeys = L"0123456789abcdefABCDEF-{}gG \x0665\x20ac\xd83d";

bool isOneOf(wchar_t character, std::wstring_view set) {
    return set.find(character) != std::wstring_view::npos;
}

/// Whether the text matches `pattern`, in which "0" stands for one of `digits`.
bool matches(std::wstring_view text, std::wstring_view pattern, std::wstring_view digits) {
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                      [digits](wchar_t character, wchar_t expected) {
                          return expected == L'0' ? isOneOf(character, digits)
                                                  : character == expected;
                      });
}

bool isTimeStamp(std::wstring_view text) {
    constexpr std::wstring_view dateAndTime = L"0000-00-00 00:00:00";
    if (text.size() <= dateAndTime.size() ||
        !matches(text.substr(0, dateAndTime.size()), dateAndTime, kDigits)) {
        return false;
    }
    text.remove_prefix(dateAndTime.size());
    if (text.front() == L'.') {
        const std::size_t zone = text.find_first_not_of(kDigits, 1);
        text.remove_prefix(std::min(zone, text.size()));
    }
    return text == L"Z" || matches(text, L"+00:00", kDigits) || matches(text, L"-00:00", kDigits);
}

bool isUuid(std::wstring_view text) {
    return matches(text, L"00000000-0000-0000-0000-000000000000", kHexadecimalDigits);
}

struct Box {
    std::wstring text;
    std::uint64_t selectionStart = 0;
    std::uint64_t selectionEnd = 0;

    void enter(std::wstring_view characters) {
        const std::uint64_t start = std::min(selectionStart, selectionEnd);
        const std::uint64_t end = std::max(selectionStart, selectionEnd);
        text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start),
                     characters);
        selectionStart = selectionEnd = start + characters.size();
    }

    friend bool operator==(const Box&, const Box&) = default;
};

class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool empty() const { return bytes_.empty(); }

    std::size_t next() {
        if (bytes_.empty()) {
            return 0;
        }
        const std::uint8_t first = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return first;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

void edit(Box& box, Bytes& bytes, std::wstring_view keys) {
    const auto key = [&] { return keys[bytes.next() % keys.size()]; };
    const auto position = [&] { return bytes.next() % (box.text.size() + 1); };
    switch (bytes.next() % 8) {
    case 0: // Type on where the cursor is.
    case 1:
        box.enter({std::wstring(1, key())});
        break;
    case 2: // Place the cursor and type.
        box.selectionStart = box.selectionEnd = position();
        box.enter({std::wstring(1, key())});
        break;
    case 3: // Delete the character in front of the cursor.
        box.selectionStart = box.selectionEnd = position();
        box.selectionStart -= std::min<std::uint64_t>(box.selectionStart, 1);
        box.enter({});
        break;
    case 4: // Select and type over.
        box.selectionStart = position();
        box.selectionEnd = position();
        box.enter({std::wstring(1, key())});
        break;
    case 5: { // Select and paste.
        box.selectionStart = position();
        box.selectionEnd = position();
        std::wstring pasted(bytes.next() % 48, L' ');
        std::generate(pasted.begin(), pasted.end(), key);
        box.enter(pasted);
        break;
    }
    case 6: // Clear.
        box = {};
        break;
    default: // Select.
        box.selectionStart = position();
        box.selectionEnd = position();
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Box timeStamp;
    for (Bytes bytes({data, size}); !bytes.empty();) {
        edit(timeStamp, bytes, kTimeStampKeys);
        AdjustTimeStampText()(timeStamp.text, timeStamp.selectionStart, timeStamp.selectionEnd);
        promise(isTimeStamp(timeStamp.text), "a time stamp has its shape");
        promise(std::max(timeStamp.selectionStart, timeStamp.selectionEnd) <= timeStamp.text.size(),
                "the selection is within the time stamp");
    }

    Box uuid;
    for (Bytes bytes({data, size}); !bytes.empty();) {
        edit(uuid, bytes, kUuidKeys);
        AdjustUuidText()(uuid.text, uuid.selectionStart, uuid.selectionEnd);
        promise(isUuid(uuid.text), "a UUID has its shape");
        promise(std::max(uuid.selectionStart, uuid.selectionEnd) <= uuid.text.size(),
                "the selection is within the UUID");
        Box again = uuid;
        AdjustUuidText()(again.text, again.selectionStart, again.selectionEnd);
        promise(again == uuid, "an adjusted UUID stays as it is");
    }
    return 0;
}
