#include "comparedLength.hpp"
#include "windowsCollation.hpp"
#include <corvane/workbench/i18n/SortKey.hpp>

namespace corvane::workbench::i18n {

SortKey::SortKey(std::wstring_view text) {
    // The system makes no key of an empty text, but of the null character, which does not count.
    const std::wstring_view source = text.empty() ? std::wstring_view(L"", 1) : text;
    const auto map = [&](char* target, int size) {
        return ::LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY | kCollationFlags,
                               source.data(), comparedLength(source.size()),
                               reinterpret_cast<wchar_t*>(target), size, nullptr, nullptr, 0);
    };
    const int size = map(nullptr, 0);
    bytes_.resize(static_cast<std::size_t>(size));
    map(bytes_.data(), size);
}

} // namespace corvane::workbench::i18n
