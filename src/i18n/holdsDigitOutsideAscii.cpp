#include "holdsDigitOutsideAscii.hpp"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <bitset>
#include <cstddef>

namespace corvane::workbench::i18n {

namespace {

// The pages, of 256 characters each, of the basic plane that hold a digit outside ASCII, and those
// of the high surrogates, behind which there may be one.
using Pages = std::bitset<256>;

UBool U_CALLCONV addRange(const void* context, UChar32 start, UChar32 limit, UCharCategory type) {
    if (type == U_DECIMAL_DIGIT_NUMBER && start > u'9' && start <= 0xFFFF) {
        auto& pages = *const_cast<Pages*>(static_cast<const Pages*>(context));
        for (UChar32 page = start >> 8; page <= (limit - 1) >> 8; ++page) {
            pages.set(static_cast<std::size_t>(page));
        }
    }
    return start <= 0xFFFF;
}

Pages findPages() {
    Pages pages;
    u_enumCharTypes(addRange, &pages);
    for (std::size_t page = 0xD8; page <= 0xDB; ++page) {
        pages.set(page);
    }
    return pages;
}

} // namespace

bool holdsDigitOutsideAscii(const IcuText& text) {
    static const Pages pages = findPages();
    const UChar* const end = text.data() + text.length();
    for (const UChar* unit = text.data(); unit != end; ++unit) {
        if (!pages.test(*unit >> 8U)) {
            continue;
        }
        const bool isPair = U16_IS_LEAD(*unit) && unit + 1 != end && U16_IS_TRAIL(unit[1]);
        const UChar32 character = isPair ? U16_GET_SUPPLEMENTARY(unit[0], unit[1]) : *unit;
        if (u_isdigit(character)) {
            return true;
        }
    }
    return false;
}

} // namespace corvane::workbench::i18n
