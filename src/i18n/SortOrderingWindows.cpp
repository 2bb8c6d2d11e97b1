#include "comparedLength.hpp"
#include "windowsCollation.hpp"
#include <corvane/workbench/i18n/SortOrdering.hpp>

namespace corvane::workbench::i18n {

std::weak_ordering SortOrdering::operator()(std::wstring_view left, std::wstring_view right) const {
    const int result = ::CompareStringEx(LOCALE_NAME_USER_DEFAULT, kCollationFlags, startOf(left),
                                         comparedLength(left.size()), startOf(right),
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
