#pragma once

// Looks for the digits of other scripts.

#include "IcuText.hpp"

namespace corvane::workbench::i18n {

/// Whether a character of the text is a decimal digit but none of 0 to 9.
[[nodiscard]] bool holdsDigitOutsideAscii(const IcuText& text);

} // namespace corvane::workbench::i18n
