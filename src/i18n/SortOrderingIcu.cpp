#include "comparedLength.hpp"
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <unicode/ucol.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace corvane::workbench::i18n {

namespace {

struct CloseCollator {
    void operator()(UCollator* collator) const noexcept { ucol_close(collator); }
};
using Collator = std::unique_ptr<UCollator, CloseCollator>;

// The locale of programs that ask for no language at all.
bool isPosix(const char* locale) {
    std::array<char, ULOC_FULLNAME_CAPACITY> variant{};
    UErrorCode status = U_ZERO_ERROR;
    uloc_getVariant(locale, variant.data(), static_cast<std::int32_t>(variant.size()), &status);
    return U_FAILURE(status) || std::string_view(variant.data()) == "POSIX";
}

// Null when ICU lacks its data.
Collator makeCollator() {
    const char* const userLocale = uloc_getDefault();
    // The POSIX order is that of the code points, which puts all capitals first.
    const char* const locale = isPosix(userLocale) ? "" : userLocale;

    UErrorCode status = U_ZERO_ERROR;
    Collator collator(ucol_open(locale, &status));
    ucol_setAttribute(collator.get(), UCOL_STRENGTH, UCOL_SECONDARY, &status);
    ucol_setAttribute(collator.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    ucol_setAttribute(collator.get(), UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
    if (U_FAILURE(status)) {
        collator.reset();
    }
    return collator;
}

// ICU's view of a text: our wide characters hold UTF-16 code units, but are larger than ICU's. A
// name fits into the object itself.
class IcuText {
public:
    explicit IcuText(std::wstring_view text) : length_(comparedLength(text.size())) {
        const auto count = static_cast<std::size_t>(length_);
        UChar* target = short_.data();
        if (count > short_.size()) {
            long_.resize(count);
            target = long_.data();
        }
        std::ranges::transform(text.substr(0, count), target,
                               [](wchar_t codeUnit) { return static_cast<UChar>(codeUnit); });
        data_ = target;
    }
    IcuText(const IcuText&) = delete;
    IcuText& operator=(const IcuText&) = delete;

    [[nodiscard]] const UChar* data() const noexcept { return data_; }
    [[nodiscard]] std::int32_t length() const noexcept { return length_; }

private:
    std::int32_t length_;
    std::array<UChar, 256> short_;
    std::u16string long_;
    const UChar* data_ = nullptr;
};

} // namespace

std::weak_ordering SortOrdering::operator()(std::wstring_view left, std::wstring_view right) const {
    static const Collator collator = makeCollator();
    if (!collator) {
        return std::weak_ordering::equivalent;
    }
    const IcuText leftText(left);
    const IcuText rightText(right);
    switch (ucol_strcoll(collator.get(), leftText.data(), leftText.length(), rightText.data(),
                         rightText.length())) {
    case UCOL_LESS:
        return std::weak_ordering::less;
    case UCOL_GREATER:
        return std::weak_ordering::greater;
    default:
        return std::weak_ordering::equivalent;
    }
}

} // namespace corvane::workbench::i18n
