#pragma once

// What decoding refuses. Not inline: the recursion that comes here would carry the room for the
// message through each of its levels.

namespace corvane::utils::json::decoder {
class Name;
class Value;
} // namespace corvane::utils::json::decoder

namespace corvane::workbench::json::internal {

[[noreturn]] void throwDuplicateMember(const utils::json::decoder::Name& name);
[[noreturn]] void throwUnsupportedType(const utils::json::decoder::Value& value);

} // namespace corvane::workbench::json::internal
