#pragma once

#include "comparedLength.hpp"

#include <unicode/umachine.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
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
            long_.resize(count);
            target = long_.data();
        }
        narrow(text.data(), count, target);
        data_ = target;
    }
    IcuText(const IcuText&) = delete;
    IcuText& operator=(const IcuText&) = delete;

    [[nodiscard]] const UChar* data() const noexcept { return data_; }
    [[nodiscard]] std::int32_t length() const noexcept { return length_; }
    /// Whether no code unit is above U+03FF, where Latin and Greek letters end.
    [[nodiscard]] bool isLatinOrGreek() const noexcept { return unitedBits_ < 0x400; }

private:
    // In blocks of a fixed size, which compilers turn into a few instructions each. The last block
    // of a text overlaps the one before, so that there is no rest to be copied one by one.
    static constexpr std::size_t kBlock = 8;

    void narrowBlock(const wchar_t* source, UChar* target) noexcept {
        std::uint32_t bits = 0;
        for (std::size_t index = 0; index < kBlock; ++index) {
            bits |= static_cast<std::uint32_t>(source[index]);
            target[index] = static_cast<UChar>(source[index]);
        }
        unitedBits_ |= bits;
    }
    void narrow(const wchar_t* source, std::size_t count, UChar* target) noexcept {
        if (count < kBlock) {
            for (std::size_t index = 0; index < count; ++index) {
                unitedBits_ |= static_cast<std::uint32_t>(source[index]);
                target[index] = static_cast<UChar>(source[index]);
            }
            return;
        }
        const std::size_t last = count - kBlock;
        for (std::size_t index = 0; index < last; index += kBlock) {
            narrowBlock(source + index, target + index);
        }
        narrowBlock(source + last, target + last);
    }

    std::int32_t length_;
    std::uint32_t unitedBits_ = 0;
    std::array<UChar, 256> short_;
    std::u16string long_;
    const UChar* data_ = nullptr;
};

} // namespace corvane::workbench::i18n
