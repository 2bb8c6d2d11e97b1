#pragma once

#include <corvane/utils/json/decoder/Name.hpp>

namespace corvane::utils::json::decoder {

class Value;

/// A member of a JSON object: its name, and its value, which is valid until the object goes on to
/// the next member.
struct Member {
    /// Stays valid when the walk goes on.
    Name name;
    /// To be read before the walk goes on.
    Value& value;
};

} // namespace corvane::utils::json::decoder
