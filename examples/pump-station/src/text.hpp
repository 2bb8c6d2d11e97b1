#pragma once

// The way of every text of this skill to the user: through the workbench's translation, under the
// context of this skill.

#include <cstdint>
#include <string>
#include <string_view>

namespace pump_station {

/// The text as the user is to see it.
[[nodiscard]] std::wstring text(std::string_view english);

/// The same with the arguments in place of the first, second and third "{}".
[[nodiscard]] std::wstring text(std::string_view english, std::wstring_view first,
                                std::wstring_view second = {}, std::wstring_view third = {});

/// A number as the user is to see it: the shortest text that stands for it.
[[nodiscard]] std::wstring numberText(double number);
[[nodiscard]] std::wstring numberText(std::int64_t number);

} // namespace pump_station
