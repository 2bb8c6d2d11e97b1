// Times the sorting of names beside ICU on its own, which is given texts in its own form and told
// to compare as SortOrdering does. Run with LC_ALL set to another language for that language's
// rules.
#include "Figures.hpp"
#include "SideBySide.hpp"
#include <corvane/workbench/i18n/SortKey.hpp>
#include <corvane/workbench/i18n/SortOrdering.hpp>

#include <unicode/ucol.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using corvane::bench::Figures;
using corvane::bench::SideBySide;
using corvane::workbench::i18n::SortKey;
using corvane::workbench::i18n::SortOrdering;

/// A name of each word and a number, in an order of their own.
std::vector<std::wstring> namesOf(const std::vector<std::wstring>& words) {
    std::mt19937 random(1);
    std::vector<std::wstring> names;
    for (int number = 0; number < 1024; ++number) {
        names.push_back(words[random() % words.size()] + L" " + std::to_wstring(random() % 200));
    }
    return names;
}

class BareIcu {
public:
    BareIcu() {
        UErrorCode status = U_ZERO_ERROR;
        collator_ = ucol_open("", &status);
        ucol_setAttribute(collator_, UCOL_STRENGTH, UCOL_SECONDARY, &status);
        ucol_setAttribute(collator_, UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
        ucol_setAttribute(collator_, UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, &status);
        ucol_setAttribute(collator_, UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
        if (U_FAILURE(status)) {
            throw std::runtime_error("ICU has no collation");
        }
    }
    BareIcu(const BareIcu&) = delete;
    BareIcu& operator=(const BareIcu&) = delete;
    ~BareIcu() { ucol_close(collator_); }

    [[nodiscard]] bool less(std::u16string_view left, std::u16string_view right) const {
        return ucol_strcoll(collator_, left.data(), static_cast<std::int32_t>(left.size()),
                            right.data(), static_cast<std::int32_t>(right.size())) == UCOL_LESS;
    }

private:
    UCollator* collator_ = nullptr;
};

/// Compares each text with another one, as often as is asked.
template <class Texts, class Less>
SideBySide::Way comparing(const Texts& texts, std::size_t& sum, Less less) {
    return [&texts, &sum, less](std::size_t times) {
        for (std::size_t time = 0; time < times; ++time) {
            const std::size_t left = time % texts.size();
            sum += less(texts[left], texts[(left * 7 + 3) % texts.size()]) ? 1U : 0U;
        }
    };
}

/// Sorts a copy of the texts.
template <class Texts, class Sort>
SideBySide::Way sorting(const Texts& texts, std::size_t& sum, Sort sort) {
    return [&texts, &sum, sort](std::size_t times) {
        for (std::size_t time = 0; time < times; ++time) {
            Texts sorted = texts;
            sort(sorted);
            sum += sorted.front().size();
        }
    };
}

void sortByKeys(std::vector<std::wstring>& texts) {
    std::vector<std::pair<SortKey, std::wstring>> keyed;
    keyed.reserve(texts.size());
    for (std::wstring& text : texts) {
        keyed.emplace_back(SortKey(text), std::move(text));
    }
    std::ranges::sort(keyed, {}, [](const auto& entry) -> const SortKey& { return entry.first; });
    std::ranges::transform(keyed, texts.begin(),
                           [](auto& entry) { return std::move(entry.second); });
}

void sortByComparing(std::vector<std::wstring>& texts) {
    std::ranges::sort(texts, [](const std::wstring& left, const std::wstring& right) {
        return SortOrdering()(left, right) < 0;
    });
}

} // namespace

int main(int argc, char** argv) {
    Figures figures(argc, argv);
    const BareIcu icu;
    std::size_t sum = 0;

    const std::vector<std::pair<std::string, std::vector<std::wstring>>> languages = {
        {"English", {L"Pump", L"pump hall", L"Valve", L"valve north", L"Motor", L"Level sensor"}},
        {"German",
         {L"F\u00FCllstand", L"Kl\u00E4rbecken", L"K\u00FChlung", L"Zul\u00E4ufe",
          L"R\u00FCcklauf"}},
        {"Russian",
         {L"\u041D\u0430\u0441\u043E\u0441", L"\u043A\u043B\u0430\u043F\u0430\u043D",
          L"\u0443\u0440\u043E\u0432\u0435\u043D\u044C",
          L"\u0434\u0432\u0438\u0433\u0430\u0442\u0435\u043B\u044C"}},
        {"Japanese",
         {L"\u30DD\u30F3\u30D7", L"\u5F01", L"\u6C34\u4F4D\u8A08", L"\u30E2\u30FC\u30BF\u30FC"}},
    };
    for (const auto& [language, words] : languages) {
        const std::vector<std::wstring> names = namesOf(words);
        std::vector<std::wstring> warm = names;
        std::vector<std::u16string> icuNames;
        for (const std::wstring& name : names) {
            icuNames.emplace_back(name.begin(), name.end());
        }
        // Both read the rules of a script when they first meet it.
        sortByComparing(warm);
        const std::vector<SortKey> keys(names.begin(), names.end());
        const auto less = [&icu](const std::u16string& left, const std::u16string& right) {
            return icu.less(left, right);
        };
        SideBySide comparison;
        comparison.add("ordering", comparing(names, sum, [](const auto& left, const auto& right) {
                           return SortOrdering()(left, right) < 0;
                       }));
        comparison.add("keys", comparing(keys, sum, std::less()));
        comparison.add("ICU", comparing(icuNames, sum, less));
        comparison.run();
        figures.add(language + ": a comparison, in ns", comparison.nanoseconds("ordering"));
        figures.add(language + ": a comparison, of ICU's own", comparison.ratio("ordering", "ICU"),
                    1.1);
        figures.add(language + ": two sort keys, of ICU's own", comparison.ratio("keys", "ICU"),
                    0.5);

        SideBySide lists;
        lists.add("keys", sorting(names, sum, sortByKeys));
        lists.add("comparing", sorting(names, sum, sortByComparing));
        lists.add("ICU", sorting(icuNames, sum, [&](std::vector<std::u16string>& texts) {
                      std::ranges::sort(texts, less);
                  }));
        lists.run();
        figures.add(language + ": 1,024 names sorted by comparing, of ICU",
                    lists.ratio("comparing", "ICU"), 1.1);
        figures.add(language + ": 1,024 names sorted by keys, of ICU", lists.ratio("keys", "ICU"),
                    0.5);
    }
    if (sum == 0) {
        std::cerr << "nothing was compared\n";
    }
    return figures.finish();
}
