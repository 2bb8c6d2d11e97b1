#include "timeStamps.hpp"

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/functional.hpp>

#include <cstdint>
#include <string>

namespace pump_station {

bool isTimeStamp(std::string_view text) {
    // A text that needs no completion is complete.
    const std::wstring typed = corvane::utils::string::toWide(text);
    std::wstring completed = typed;
    std::uint64_t selectionStart = 0;
    std::uint64_t selectionEnd = completed.size();
    corvane::workbench::bindings::functional::AdjustTimeStampText()(completed, selectionStart,
                                                                    selectionEnd);
    return completed == typed;
}

} // namespace pump_station
