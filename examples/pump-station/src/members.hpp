#pragma once

// Reading and writing the members of an element's JSON object. What cannot be read is reported by
// an exception that carries the place in the file.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace corvane::utils::core {
class Uuid;
}
namespace corvane::utils::json::decoder {
class Location;
class Value;
} // namespace corvane::utils::json::decoder
namespace corvane::utils::json::encoder {
class Object;
}

namespace pump_station {

/// Throws a std::runtime_error with the message, located when the location is known.
[[noreturn]] void throwError(const corvane::utils::json::decoder::Location& location,
                             const std::string& message);

[[nodiscard]] std::string readText(corvane::utils::json::decoder::Value& value);
[[nodiscard]] double readNumber(corvane::utils::json::decoder::Value& value);
[[nodiscard]] std::int64_t readInteger(corvane::utils::json::decoder::Value& value);
[[nodiscard]] corvane::utils::core::Uuid readUuid(corvane::utils::json::decoder::Value& value);
/// The index of the value among the texts that are allowed.
[[nodiscard]] std::size_t readChoice(corvane::utils::json::decoder::Value& value,
                                     std::span<const std::string_view> texts);

/// The same for an enumeration whose values 0, 1, ... have the texts.
template <class E>
void readChoice(corvane::utils::json::decoder::Value& value,
                std::span<const std::string_view> texts, E& choice) {
    choice = static_cast<E>(readChoice(value, texts));
}

void writeText(corvane::utils::json::encoder::Object& object, std::string_view name,
               std::string_view text);
void writeNumber(corvane::utils::json::encoder::Object& object, std::string_view name,
                 double number);
void writeInteger(corvane::utils::json::encoder::Object& object, std::string_view name,
                  std::int64_t number);

template <class E>
void writeChoice(corvane::utils::json::encoder::Object& object, std::string_view name,
                 std::span<const std::string_view> texts, E choice) {
    writeText(object, name, texts[static_cast<std::size_t>(choice)]);
}

} // namespace pump_station
