#pragma once

#include "IcuText.hpp"
#include "PrimaryWeights.hpp"

#include <unicode/ucol.h>

#include <compare>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::workbench::i18n {

/// The order of texts in the user's language as ICU has it: without regard to case, with runs of
/// digits compared by their value, and with canonically equivalent texts equivalent. Made once for
/// the process; may be used from any thread.
class IcuCollation {
public:
    /// Null when ICU lacks its data.
    [[nodiscard]] static const IcuCollation* instance();

    [[nodiscard]] std::weak_ordering compare(std::wstring_view left, std::wstring_view right) const;
    /// Bytes that compare like the texts.
    [[nodiscard]] std::string sortKey(const IcuText& text) const;

private:
    using Collator = std::unique_ptr<UCollator, void (*)(UCollator*)>;

    IcuCollation(Collator collator, Collator primaryCollator)
        : collator_(std::move(collator)), primaryWeights_(std::move(primaryCollator)) {}
    [[nodiscard]] static std::unique_ptr<const IcuCollation> make();
    /// Null when ICU lacks its data.
    [[nodiscard]] static Collator open(UCollationStrength strength);

    Collator collator_;
    PrimaryWeights primaryWeights_;
};

} // namespace corvane::workbench::i18n
