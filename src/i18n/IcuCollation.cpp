#include "IcuCollation.hpp"

#include "holdsDigitOutsideAscii.hpp"

#include <unicode/uloc.h>

#include <array>
#include <cstdint>
#include <string_view>

namespace corvane::workbench::i18n {

namespace {

// The locale of programs that ask for no language at all.
bool isPosix(const char* locale) {
    std::array<char, ULOC_FULLNAME_CAPACITY> variant{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_getVariant(locale, variant.data(), static_cast<std::int32_t>(variant.size()), &status);
    return U_FAILURE(status) || std::string_view(variant.data()) == "POSIX";
}

} // namespace

const IcuCollation* IcuCollation::instance() {
    static const std::unique_ptr<const IcuCollation> collation = make();
    return collation.get();
}

std::unique_ptr<const IcuCollation> IcuCollation::make() {
    Collator collator = open(UCOL_SECONDARY);
    Collator primaryCollator = open(UCOL_PRIMARY);
    if (!collator || !primaryCollator) {
        return nullptr;
    }
    return std::unique_ptr<const IcuCollation>(
        new IcuCollation(std::move(collator), std::move(primaryCollator)));
}

IcuCollation::Collator IcuCollation::open(UCollationStrength strength) {
    const char* const userLocale = uloc_getDefault();
    // The POSIX order is that of the code points, which puts all capitals first.
    const char* const locale = isPosix(userLocale) ? "" : userLocale;

    UErrorCode status = U_ZERO_ERROR;
    Collator collator(ucol_open(locale, &status), ucol_close);
    ucol_setAttribute(collator.get(), UCOL_STRENGTH, strength, &status);
    ucol_setAttribute(collator.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    ucol_setAttribute(collator.get(), UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
    ucol_setAttribute(collator.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    if (U_FAILURE(status)) {
        collator.reset();
    }
    return collator;
}

std::weak_ordering IcuCollation::compare(std::wstring_view leftText,
                                         std::wstring_view rightText) const {
    leftText = leftText.substr(0, static_cast<std::size_t>(comparedLength(leftText.size())));
    rightText = rightText.substr(0, static_cast<std::size_t>(comparedLength(rightText.size())));
    if (const auto decided = primaryWeights_.compare(leftText, rightText)) {
        return *decided;
    }
    const IcuText left(leftText);
    const IcuText right(rightText);
    // With digits of other scripts ICU's direct comparison contradicts itself in most languages;
    // its sort keys do not.
    if (holdsDigitOutsideAscii(left) || holdsDigitOutsideAscii(right)) {
        return sortKey(left) <=> sortKey(right);
    }
    switch (
        ucol_strcoll(collator_.get(), left.data(), left.length(), right.data(), right.length())) {
    case UCOL_LESS:
        return std::weak_ordering::less;
    case UCOL_GREATER:
        return std::weak_ordering::greater;
    default:
        return std::weak_ordering::equivalent;
    }
}

std::string IcuCollation::sortKey(const IcuText& text) const {
    std::array<std::uint8_t, 256> shortKey;
    const auto fill = [&](std::uint8_t* target, std::size_t size) {
        return static_cast<std::size_t>(ucol_getSortKey(collator_.get(), text.data(), text.length(),
                                                        target, static_cast<std::int32_t>(size)));
    };
    const std::size_t size = fill(shortKey.data(), shortKey.size());
    std::string key(size, '\0');
    if (size <= shortKey.size()) {
        key.assign(shortKey.begin(), shortKey.begin() + static_cast<std::ptrdiff_t>(size));
    } else {
        fill(reinterpret_cast<std::uint8_t*>(key.data()), size);
    }
    return key;
}

} // namespace corvane::workbench::i18n
