#pragma once

// Texts as the commands print them. All narrow text is UTF-8.

#include <corvane/utils/io/pathText.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/text.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::skillbench {

using utils::io::pathOf;
using utils::io::pathText;
using workbench::host::countText;
using workbench::host::inQuotes;
using workbench::host::keyText;
using workbench::host::onOneLine;

/// The text and spaces behind it up to the width, counting one place per character.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

} // namespace corvane::skillbench
