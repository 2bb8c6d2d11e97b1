#pragma once

#include "IcuText.hpp"

#include <unicode/ucol.h>

#include <compare>
#include <memory>
#include <string>

namespace corvane::workbench::i18n {

/// The order of texts in the user's language as ICU has it: without regard to case, with runs of
/// digits compared by their value, and with canonically equivalent texts equivalent. Made once for
/// the process; may be used from any thread.
class IcuCollation {
public:
    /// Null when ICU lacks its data.
    [[nodiscard]] static const IcuCollation* instance();

    [[nodiscard]] std::weak_ordering compare(const IcuText& left, const IcuText& right) const;
    /// Bytes that compare like the texts.
    [[nodiscard]] std::string sortKey(const IcuText& text) const;

private:
    struct Close {
        void operator()(UCollator* collator) const noexcept { ucol_close(collator); }
    };
    using Collator = std::unique_ptr<UCollator, Close>;

    explicit IcuCollation(Collator collator) : collator_(std::move(collator)) {}
    [[nodiscard]] static std::unique_ptr<const IcuCollation> make();

    Collator collator_;
};

} // namespace corvane::workbench::i18n
