#pragma once

#include <corvane/utils/json/decoder/Name.hpp>

namespace corvane::utils::json::decoder {

class Value;

/// A member of a JSON object: its name, and its value, which is valid until the object goes on to
/// the next member.
struct Member {
    Name name;
    Value& value;
};

} // namespace corvane::utils::json::decoder
