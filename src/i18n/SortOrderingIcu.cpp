#include "IcuCollation.hpp"
#include <corvane/workbench/i18n/SortOrdering.hpp>

namespace corvane::workbench::i18n {

std::weak_ordering SortOrdering::operator()(std::wstring_view left, std::wstring_view right) const {
    const IcuCollation* const collation = IcuCollation::instance();
    return collation != nullptr ? collation->compare(left, right) : std::weak_ordering::equivalent;
}

} // namespace corvane::workbench::i18n
