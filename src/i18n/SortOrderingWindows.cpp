#include "comparedLength.hpp"
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <windows.h>

namespace corvane::workbench::i18n {

namespace {

// The system refuses a null pointer, also for an empty text.
const wchar_t* start(std::wstring_view text) noexcept {
    return text.data() != nullptr ? text.data() : L"";
}

} // namespace

std::weak_ordering SortOrdering::operator()(std::wstring_view left, std::wstring_view right) const {
    const int result =
        ::CompareStringEx(LOCALE_NAME_USER_DEFAULT,
                          LINGUISTIC_IGNORECASE | NORM_LINGUISTIC_CASING | SORT_DIGITSASNUMBERS,
                          start(left), comparedLength(left.size()), start(right),
                          comparedLength(right.size()), nullptr, nullptr, 0);
    switch (result) {
    case CSTR_LESS_THAN:
        return std::weak_ordering::less;
    case CSTR_GREATER_THAN:
        return std::weak_ordering::greater;
    default:
        return std::weak_ordering::equivalent;
    }
}

} // namespace corvane::workbench::i18n
