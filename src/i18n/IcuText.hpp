#pragma once

#include "comparedLength.hpp"

#include <unicode/umachine.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace corvane::workbench::i18n {

/// ICU's view of a text: our wide characters hold UTF-16 code units but are larger than ICU's. A
/// name fits into the object itself.
class IcuText {
public:
    explicit IcuText(std::wstring_view text) : length_(comparedLength(text.size())) {
        const auto count = static_cast<std::size_t>(length_);
        UChar* target = short_.data();
        if (count > short_.size()) {
            long_ = std::make_unique_for_overwrite<UChar[]>(count);
            target = long_.get();
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
    std::unique_ptr<UChar[]> long_;
    const UChar* data_ = nullptr;
};

} // namespace corvane::workbench::i18n
