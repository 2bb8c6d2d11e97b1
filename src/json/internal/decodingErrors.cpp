#include "decodingErrors.hpp"

#include "throwAt.hpp"
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Value.hpp>

#include <format>
#include <stdexcept>

namespace corvane::workbench::json::internal {

void throwDuplicateMember(const utils::json::decoder::Name& name) {
    throwAt(name.location(),
            std::runtime_error(std::format("duplicate member \"{}\" in JSON object", name.text())));
}

void throwUnsupportedType(const utils::json::decoder::Value& value) {
    throwAt(value.location(), std::logic_error("internal_error: unsupported JSON value type"));
}

} // namespace corvane::workbench::json::internal
