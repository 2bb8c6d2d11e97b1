#pragma once

#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/json/DecodingOptions.hpp>
#include <corvane/workbench/json/internal/Sequence.hpp>

#include <tl/expected.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane::utils::json::decoder {
class Array;
class Value;
} // namespace corvane::utils::json::decoder
namespace corvane::utils::json::encoder {
class Array;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::json {

class Value;

/// A JSON array held in memory: values in order. To use the elements include json/Value.hpp.
///
/// A value type; not synchronised. References, pointers and iterators to elements follow the rules
/// of std::vector.
class CORVANE_WORKBENCH_EXPORT Array {
public:
    /// Iterators are pointers: the elements stand one behind the other.
    /// @{
    using value_type = Value;
    using iterator = Value*;
    using const_iterator = const Value*;
    /// @}

    Array() noexcept;
    /// Copies the nested values too.
    Array(const Array& other);
    /// Leaves `other` empty.
    Array(Array&& other) noexcept;
    /// Also safe when `other` is nested in this array.
    Array& operator=(const Array& other);
    /// Leaves `other` empty, also when it is nested in this array.
    Array& operator=(Array&& other) noexcept;
    ~Array();

    /// As in std::vector.
    /// @{
    [[nodiscard]] bool empty() const noexcept;
    [[nodiscard]] std::size_t size() const noexcept;
    [[nodiscard]] iterator begin() noexcept;
    [[nodiscard]] iterator end() noexcept;
    [[nodiscard]] const_iterator begin() const noexcept;
    [[nodiscard]] const_iterator end() const noexcept;
    /// @}

    /// Precondition: `index` is less than the size.
    /// @{
    [[nodiscard]] Value& operator[](std::size_t index) noexcept;
    [[nodiscard]] const Value& operator[](std::size_t index) const noexcept;
    /// @}

    /// Makes room for that many elements in all.
    void reserve(std::size_t size);
    /// Adds a value at the end; returns it as held.
    Value& append(Value value);
    /// Removes one element; returns the one behind it.
    iterator erase(const_iterator element);
    /// Also gives the memory back.
    void clear() noexcept;

    /// Same length and equal values position by position.
    [[nodiscard]] bool operator==(const Array& other) const;

    /// Replaces the elements by those of a JSON array. Throws the decoder's exceptions and then
    /// leaves the elements alone.
    /// @{
    void decode(utils::json::decoder::Value& source, DecodingOptions options = {});
    void decode(utils::json::decoder::Array& source, DecodingOptions options = {});
    /// @}

    /// Writes the value as an array.
    void encode(utils::json::encoder::Value& target) const;
    /// Adds the elements to an open array.
    void encode(utils::json::encoder::Array& target) const;

    /// Reads a whole JSON text; the error is a message for the user.
    [[nodiscard]] static tl::expected<Array, std::wstring> fromString(std::string_view text,
                                                                      DecodingOptions options = {});
    /// The array as a JSON text (UTF-8).
    [[nodiscard]] std::string toString(utils::json::encoder::Document::Format format) const;

private:
    friend class Value;

    void decodeElements(utils::json::decoder::Array& source);

    internal::Sequence<Value> elements_;
};

} // namespace corvane::workbench::json
