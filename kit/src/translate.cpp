#include <corvane/workbench/kit/translate.hpp>

#include "translationContext.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/i18n/translate.hpp>
#include <corvane/workbench/kit/State.hpp>

namespace corvane::workbench::kit {

std::wstring valueText(double number) {
    return utils::string::toWide(utils::numeric::format(number).view());
}

std::wstring valueText(std::int64_t number) {
    return utils::string::toWide(utils::numeric::format(number).view());
}

std::wstring valueText(std::uint64_t number) {
    return utils::string::toWide(utils::numeric::format(number).view());
}

std::wstring valueText(const chrono::Duration& duration) {
    return utils::string::toWide(duration.toString());
}

std::wstring valueText(const utils::core::Uuid& uuid) {
    return utils::string::toWide(uuid.toString());
}

std::wstring valueText(std::string_view text) {
    return utils::string::toWide(text);
}

std::wstring valueText(std::wstring_view text) {
    return std::wstring(text);
}

namespace internal {

std::wstring translated(std::string_view english) {
    return i18n::translate(translationContext(), english);
}

std::wstring format(std::string_view english, std::initializer_list<std::wstring> values) {
    // The texts and the number of places were checked when the skill was compiled; a translation
    // may leave a place out, but not add one.
    const std::wstring pattern = translated(english);
    std::wstring result;
    const auto* value = values.begin();
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const wchar_t unit = pattern[at];
        const bool isBrace = unit == L'{' || unit == L'}';
        if (isBrace && pattern.size() > at + 1 && pattern[at + 1] == unit) {
            result += unit;
            ++at;
        } else if (unit == L'{' && pattern.size() > at + 1 && pattern[at + 1] == L'}') {
            if (value != values.end()) {
                result += *value++;
            }
            ++at;
        } else {
            result += unit;
        }
    }
    return result;
}

} // namespace internal

std::wstring text(Text english) {
    return internal::translated(english);
}

tl::unexpected<std::wstring> error(Text english) {
    return tl::unexpected(text(english));
}

State require(bool condition, Text message) {
    if (condition) {
        return {};
    }
    return error(message);
}

} // namespace corvane::workbench::kit
