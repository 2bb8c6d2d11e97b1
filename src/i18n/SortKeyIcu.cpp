#include "IcuCollation.hpp"
#include <corvane/workbench/i18n/SortKey.hpp>

namespace corvane::workbench::i18n {

SortKey::SortKey(std::wstring_view text) {
    if (const IcuCollation* const collation = IcuCollation::instance()) {
        bytes_ = collation->sortKey(IcuText(text));
    }
}

} // namespace corvane::workbench::i18n
