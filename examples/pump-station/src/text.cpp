#include "text.hpp"

#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/i18n/translate.hpp>

#include <format>

namespace pump_station {

std::wstring text(std::string_view english) {
    return corvane::workbench::i18n::translate("pump_station", english);
}

std::wstring text(std::string_view english, std::wstring_view first, std::wstring_view second,
                  std::wstring_view third) {
    return std::vformat(text(english), std::make_wformat_args(first, second, third));
}

std::wstring numberText(double number) {
    return corvane::utils::string::toWide(corvane::utils::numeric::format(number).view());
}

std::wstring numberText(std::int64_t number) {
    return corvane::utils::string::toWide(corvane::utils::numeric::format(number).view());
}

} // namespace pump_station
