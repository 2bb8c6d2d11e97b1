#pragma once

// How reading a configuration fails.

#include <string>

namespace corvane::utils::json::decoder {
class Location;
class Value;
} // namespace corvane::utils::json::decoder

namespace corvane::workbench::kit {

/// Throws a std::runtime_error with the message (UTF-8), which is reported with the value's place
/// in the file.
[[noreturn]] void fail(const utils::json::decoder::Value& value, const std::string& message);
/// The same for a place that was kept. An unknown place is left out.
[[noreturn]] void fail(const utils::json::decoder::Location& location, const std::string& message);

} // namespace corvane::workbench::kit
