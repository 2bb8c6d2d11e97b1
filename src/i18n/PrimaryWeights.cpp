#include "PrimaryWeights.hpp"

#include <unicode/uchar.h>
#include <unicode/uset.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <utility>

namespace corvane::workbench::i18n {

namespace {

struct CloseSet {
    void operator()(USet* set) const noexcept { uset_close(set); }
};
using Set = std::unique_ptr<USet, CloseSet>;

/// Calls back with each range of characters and with each string of the set.
template <class Range, class String>
void forEachItem(const USet* set, Range&& range, String&& string) {
    for (std::int32_t index = 0; index < uset_getItemCount(set); ++index) {
        std::array<UChar, 64> text{};
        UChar32 first = 0;
        UChar32 last = 0;
        UErrorCode status = U_ZERO_ERROR;
        const std::int32_t length = uset_getItem(set, index, &first, &last, text.data(),
                                                 static_cast<std::int32_t>(text.size()), &status);
        if (length == 0) {
            range(first, last);
        } else {
            string(std::u16string_view(text.data(),
                                       std::min(static_cast<std::size_t>(length), text.size())));
        }
    }
}

constexpr bool isDigit(auto unit) {
    return unit >= '0' && unit <= '9';
}

} // namespace

/// A run of digits, without leading zeros, and where it ends.
struct PrimaryWeights::Number {
    /// Longer ones are compared piece by piece.
    static constexpr std::size_t kLongest = 200;

    Number(std::wstring_view text, std::size_t begin)
        : end(std::min(text.find_first_not_of(L"0123456789", begin), text.size())),
          digits(text.substr(begin, end - begin)) {
        digits.remove_prefix(std::min(digits.find_first_not_of(L'0'), digits.size()));
    }

    [[nodiscard]] std::weak_ordering operator<=>(const Number& other) const {
        return digits.size() != other.digits.size() ? digits.size() <=> other.digits.size()
                                                    : digits <=> other.digits;
    }

    std::size_t end;
    std::wstring_view digits;
};

PrimaryWeights::PrimaryWeights(std::unique_ptr<UCollator, void (*)(UCollator*)> collator)
    : collator_(std::move(collator)) {
    const Set contractions(uset_openEmpty());
    const Set expansions(uset_openEmpty());
    UErrorCode status = U_ZERO_ERROR;
    ucol_getContractionsAndExpansions(collator_.get(), contractions.get(), expansions.get(), true,
                                      &status);
    if (U_FAILURE(status)) {
        continues_.set(); // nothing is known to stand for itself
        return;
    }
    const auto noteContraction = [this](std::u16string_view text) {
        for (const UChar unit : text.substr(1)) {
            continues_.set(unit);
        }
    };
    forEachItem(contractions.get(), [](UChar32, UChar32) {}, noteContraction);
    const auto noteExpansions = [this](UChar32 first, UChar32 last) {
        for (UChar32 unit = first; unit <= std::min<UChar32>(last, 0xFFFF); ++unit) {
            expands_.set(static_cast<std::size_t>(unit));
        }
    };
    forEachItem(expansions.get(), noteExpansions, [](std::u16string_view) {});
    numberLead_ = keyOf(u'0').bytes[0];
    for (UChar32 unit = 0; unit <= 0xFFFF; ++unit) {
        if (u_getCombiningClass(unit) != 0) {
            continues_.set(static_cast<std::size_t>(unit));
        }
    }
}

PrimaryWeights::~PrimaryWeights() {
    for (const auto& page : pages_) {
        delete page.load();
    }
}

std::optional<std::weak_ordering> PrimaryWeights::compare(std::wstring_view left,
                                                          std::wstring_view right) const {
    std::size_t leftIndex = 0;
    std::size_t rightIndex = 0;
    while (leftIndex < left.size() && rightIndex < right.size()) {
        const bool leftIsDigit = isDigit(left[leftIndex]);
        const bool rightIsDigit = isDigit(right[rightIndex]);
        if ((leftIsDigit || rightIsDigit) &&
            (mayBeForeignDigit(left, leftIndex - 1) || mayBeForeignDigit(right, rightIndex - 1))) {
            return std::nullopt;
        }
        if (leftIsDigit && rightIsDigit) {
            const Number leftNumber(left, leftIndex);
            const Number rightNumber(right, rightIndex);
            if (!isSettled(leftNumber, left) || !isSettled(rightNumber, right)) {
                return std::nullopt;
            }
            if (const auto order = leftNumber <=> rightNumber; order != 0) {
                return order;
            }
            leftIndex = leftNumber.end;
            rightIndex = rightNumber.end;
            continue;
        }
        if (left[leftIndex] != right[rightIndex]) {
            const std::uint32_t leftWeight = settledWeight(left, leftIndex);
            const std::uint32_t rightWeight = settledWeight(right, rightIndex);
            if (leftWeight == 0 || rightWeight == 0) {
                return std::nullopt;
            }
            if (leftWeight != rightWeight) {
                return leftWeight <=> rightWeight;
            }
        }
        ++leftIndex;
        ++rightIndex;
    }
    return compareRest(left, leftIndex, right, rightIndex);
}

// At least one of the texts has ended, and so far the letters and numbers are the same.
std::optional<std::weak_ordering> PrimaryWeights::compareRest(std::wstring_view left,
                                                              std::size_t leftIndex,
                                                              std::wstring_view right,
                                                              std::size_t rightIndex) const {
    const bool leftEnds = leftIndex == left.size();
    if (leftEnds && rightIndex == right.size()) {
        // Case does not count, but there may be accents.
        return left == right ? std::optional(std::weak_ordering::equivalent) : std::nullopt;
    }
    const std::wstring_view longer = leftEnds ? right : left;
    const std::size_t index = leftEnds ? rightIndex : leftIndex;
    if (settledWeight(longer, index) == 0 ||
        (isDigit(longer[index]) && mayBeForeignDigit(longer, index - 1))) {
        return std::nullopt;
    }
    return leftEnds ? std::weak_ordering::less : std::weak_ordering::greater;
}

bool PrimaryWeights::isSettled(const Number& number, std::wstring_view text) const {
    return number.digits.size() <= Number::kLongest && !mayContinue(text, number.end) &&
           !mayBeForeignDigit(text, number.end);
}

const PrimaryWeights::Page& PrimaryWeights::makePage(std::size_t number) const {
    auto made = std::make_unique<Page>();
    for (std::size_t index = 0; index < kPageSize; ++index) {
        (*made)[index] = findWeight(static_cast<UChar>(number * kPageSize + index));
    }
    const Page* page = nullptr;
    if (pages_[number].compare_exchange_strong(page, made.get(), std::memory_order_acq_rel)) {
        page = made.release();
    }
    return *page;
}

std::uint32_t PrimaryWeights::findWeight(UChar unit) const {
    if (isDigit(unit)) {
        return std::uint32_t{numberLead_} << 24U;
    }
    if (U16_IS_SURROGATE(unit) || !u_isdefined(unit) || u_isdigit(unit) || continues_.test(unit) ||
        expands_.test(unit)) {
        return 0;
    }
    const Key key = keyOf(unit);
    // The bytes of the weight and a zero; more than four are no weight of a single letter.
    if (key.size < 2 || key.size > 5 || key.bytes[0] == numberLead_) {
        return 0;
    }
    return std::uint32_t{key.bytes[0]} << 24U | std::uint32_t{key.bytes[1]} << 16U |
           std::uint32_t{key.bytes[2]} << 8U | std::uint32_t{key.bytes[3]};
}

PrimaryWeights::Key PrimaryWeights::keyOf(UChar unit) const {
    Key key;
    key.size = ucol_getSortKey(collator_.get(), &unit, 1, key.bytes.data(),
                               static_cast<std::int32_t>(key.bytes.size()));
    return key;
}

} // namespace corvane::workbench::i18n
