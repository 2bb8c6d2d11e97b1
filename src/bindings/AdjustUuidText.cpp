#include "EditedText.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::workbench::bindings::functional {

namespace {

constexpr std::size_t kDigits = 32;
constexpr std::array<std::size_t, 5> kGroupEnds{8, 12, 16, 20, 32};
constexpr std::array<std::size_t, 4> kHyphens{8, 13, 18, 23};

constexpr bool isHexadecimalDigit(wchar_t character) noexcept {
    return internal::isDigit(character) || (character >= L'a' && character <= L'f') ||
           (character >= L'A' && character <= L'F');
}

std::size_t endOfGroupHolding(std::uint64_t position) noexcept {
    for (const std::size_t end : kGroupEnds) {
        if (end >= position) {
            return end;
        }
    }
    return kGroupEnds.back();
}

bool isBehindHyphen(std::wstring_view text, std::uint64_t position) noexcept {
    return position != 0 && position <= text.size() &&
           text[static_cast<std::size_t>(position - 1)] == L'-';
}

} // namespace

void AdjustUuidText::operator()(std::wstring& text, std::uint64_t& selectionStart,
                                std::uint64_t& selectionEnd) const {
    const bool startWasBehindHyphen = isBehindHyphen(text, selectionStart);
    const bool endWasBehindHyphen = isBehindHyphen(text, selectionEnd);

    internal::EditedText edited(text, selectionStart, selectionEnd);
    const std::size_t digits = edited.keepOnly(isHexadecimalDigit, 0, edited.size());

    const std::size_t groupEnd = endOfGroupHolding(selectionEnd);
    if (digits > kDigits) {
        // The digits just behind the cursor's group give way: typing overwrites.
        edited.remove(groupEnd, digits - kDigits);
        edited.limitSelection(groupEnd);
    } else if (digits < kDigits) {
        // Not through `edited`: the positions stay where they are.
        text.insert(std::min(groupEnd, digits), kDigits - digits, L'0');
    }

    for (const std::size_t index : kHyphens) {
        edited.insert(index, L'-');
    }

    if (startWasBehindHyphen && isBehindHyphen(text, selectionStart + 1)) {
        ++selectionStart;
    }
    if (endWasBehindHyphen && isBehindHyphen(text, selectionEnd + 1)) {
        ++selectionEnd;
    }
}

} // namespace corvane::workbench::bindings::functional
