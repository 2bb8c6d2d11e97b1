#pragma once

// Time stamps are kept as text, so that the fraction and the offset stay as the user wrote them.

#include <string_view>

namespace pump_station {

/// Whether the text (UTF-8) is a complete time stamp such as "2024-05-06 07:08:09Z".
[[nodiscard]] bool isTimeStamp(std::string_view text);

} // namespace pump_station
