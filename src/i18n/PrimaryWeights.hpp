#pragma once

#include <unicode/ucol.h>

#include <array>
#include <atomic>
#include <bitset>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace corvane::workbench::i18n {

/// Decides the comparison of most texts at a glance: at the first letter or number that is another
/// one. For that it knows the weight of each character of the basic plane that stands for itself,
/// whatever is beside it. May be used from any thread.
class PrimaryWeights {
public:
    /// Takes a collator of primary strength, the order of the letters and numbers alone.
    explicit PrimaryWeights(std::unique_ptr<UCollator, void (*)(UCollator*)> collator);
    PrimaryWeights(const PrimaryWeights&) = delete;
    PrimaryWeights& operator=(const PrimaryWeights&) = delete;
    ~PrimaryWeights();

    /// The order of two texts when their letters and numbers decide it; nothing when it takes more.
    [[nodiscard]] std::optional<std::weak_ordering> compare(std::wstring_view left,
                                                            std::wstring_view right) const;

private:
    // A page is worked out when one of its characters is first asked for.
    static constexpr std::size_t kPageSize = 256;
    using Page = std::array<std::uint32_t, kPageSize>;
    struct Number;
    struct Key {
        std::array<std::uint8_t, 16> bytes{};
        std::int32_t size = 0;
    };

    /// 0 when the character does not stand for itself.
    [[nodiscard]] std::uint32_t weight(wchar_t codeUnit) const {
        const auto unit = static_cast<std::uint16_t>(codeUnit);
        const Page* page = pages_[unit / kPageSize].load(std::memory_order_acquire);
        return (page != nullptr ? *page : makePage(unit / kPageSize))[unit % kPageSize];
    }
    /// Whether what stands there can make something else of the character before it.
    [[nodiscard]] bool mayContinue(std::wstring_view text, std::size_t index) const {
        return index < text.size() && continues_.test(static_cast<std::uint16_t>(text[index]));
    }
    /// Whether what stands there may be a digit of another script, part of the number beside it.
    [[nodiscard]] bool mayBeForeignDigit(std::wstring_view text, std::size_t index) const {
        return index < text.size() && text[index] > L'\x7F' && weight(text[index]) == 0;
    }
    /// The weight of the character there; 0 when it does not stand for itself or what is behind it
    /// may make something else of it.
    [[nodiscard]] std::uint32_t settledWeight(std::wstring_view text, std::size_t index) const {
        return mayContinue(text, index + 1) ? 0 : weight(text[index]);
    }
    [[nodiscard]] bool isSettled(const Number& number, std::wstring_view text) const;
    [[nodiscard]] std::optional<std::weak_ordering> compareRest(std::wstring_view left,
                                                                std::size_t leftIndex,
                                                                std::wstring_view right,
                                                                std::size_t rightIndex) const;

    const Page& makePage(std::size_t number) const;
    [[nodiscard]] std::uint32_t findWeight(UChar unit) const;
    [[nodiscard]] Key keyOf(UChar unit) const;

    std::unique_ptr<UCollator, void (*)(UCollator*)> collator_;
    // Characters that can make another letter of the one before, and those that are several.
    std::bitset<0x10000> continues_;
    std::bitset<0x10000> expands_;
    // What the weights of all numbers begin with.
    std::uint8_t numberLead_ = 0;
    mutable std::array<std::atomic<const Page*>, 0x10000 / kPageSize> pages_{};
};

} // namespace corvane::workbench::i18n
