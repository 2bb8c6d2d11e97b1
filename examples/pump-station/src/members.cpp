#include "members.hpp"

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/String.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>

#include <algorithm>
#include <stdexcept>

namespace pump_station {

namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;
namespace numeric = corvane::utils::numeric;

void throwError(const decoder::Location& location, const std::string& message) {
    if (location) {
        throw decoder::detail::WrappedException<std::runtime_error>(location,
                                                                    std::runtime_error(message));
    }
    throw std::runtime_error(message);
}

std::string readText(decoder::Value& value) {
    return std::string(value.asString().view());
}

double readNumber(decoder::Value& value) {
    return value.asDouble();
}

std::int64_t readInteger(decoder::Value& value) {
    return value.asInt64();
}

core::Uuid readUuid(decoder::Value& value) {
    const decoder::Location location = value.location();
    const std::string text = readText(value);
    const std::optional<core::Uuid> uuid = core::Uuid::parse(text);
    if (!uuid) {
        throwError(location, "\"" + text + "\" is not a UUID");
    }
    return *uuid;
}

std::size_t readChoice(decoder::Value& value, std::span<const std::string_view> texts) {
    const decoder::Location location = value.location();
    const std::string text = readText(value);
    const auto found = std::ranges::find(texts, text);
    if (found == texts.end()) {
        std::string message = "\"" + text + "\" is not one of";
        for (const std::string_view& allowed : texts) {
            message.append(&allowed == &texts.front() ? " \"" : ", \"")
                .append(allowed)
                .append("\"");
        }
        throwError(location, message);
    }
    return static_cast<std::size_t>(found - texts.begin());
}

void writeText(encoder::Object& object, std::string_view name, std::string_view text) {
    object.addMember(name).writeString(text);
}

void writeNumber(encoder::Object& object, std::string_view name, double number) {
    object.addMember(name).writeNumber(numeric::format(number).view());
}

void writeInteger(encoder::Object& object, std::string_view name, std::int64_t number) {
    object.addMember(name).writeNumber(numeric::format(number).view());
}

} // namespace pump_station
