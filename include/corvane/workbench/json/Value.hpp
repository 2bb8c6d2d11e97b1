// Any JSON value held in memory, for configuration that is kept without knowing its meaning.
//
// A value type; not synchronised. Copying, comparing, writing and destroying walk the nested
// values recursively: what the decoder accepts (512 levels) fits a stack of 1 MiB.
#pragma once

#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/json/Array.hpp>
#include <corvane/workbench/json/DecodingOptions.hpp>
#include <corvane/workbench/json/Object.hpp>

#include <tl/expected.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace corvane::utils::json::decoder {
class Value;
}
namespace corvane::utils::json::encoder {
class Value;
}

namespace corvane::workbench::json {

class CORVANE_WORKBENCH_EXPORT Value {
public:
    struct Null {
        friend constexpr bool operator==(const Null&, const Null&) noexcept { return true; }
    };

    /// The alternatives in their required order. The three kinds of number are never converted
    /// into one another.
    enum class Kind : std::uint8_t {
        Object,
        Array,
        String,
        SignedInteger,
        UnsignedInteger,
        Double,
        Boolean,
        Null,
    };

    /// Null.
    Value() noexcept;
    Value(Null) noexcept;
    Value(Object object) noexcept;
    Value(Array array) noexcept;
    /// UTF-8.
    Value(std::string text) noexcept;
    Value(std::string_view text);
    Value(const char* text);
    /// Exactly a bool: pointers and numbers do not become one.
    template <std::same_as<bool> T>
    Value(T boolean) noexcept : m_content(std::in_place_type<bool>, boolean) {}
    /// Signed types become a signed integer, unsigned ones an unsigned integer.
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    Value(T number) noexcept
        : m_content(std::in_place_type<
                        std::conditional_t<std::signed_integral<T>, std::int64_t, std::uint64_t>>,
                    number) {}
    Value(double number) noexcept;

    Value(const Value& other);
    Value(Value&& other) noexcept;
    /// Also safe when `other` is nested in this value.
    Value& operator=(const Value& other);
    Value& operator=(Value&& other) noexcept;
    ~Value();

    [[nodiscard]] Kind kind() const noexcept { return static_cast<Kind>(m_content.index()); }

    /// T is one of the alternatives: Object, Array, std::string, std::int64_t, std::uint64_t,
    /// double, bool, Null.
    template <class T>
    [[nodiscard]] bool is() const noexcept {
        return std::holds_alternative<T>(m_content);
    }
    /// The content if it is of that kind, else null.
    template <class T>
    [[nodiscard]] T* getIf() noexcept {
        return std::get_if<T>(&m_content);
    }
    template <class T>
    [[nodiscard]] const T* getIf() const noexcept {
        return std::get_if<T>(&m_content);
    }
    /// The content; throws std::bad_variant_access if it is of another kind.
    template <class T>
    [[nodiscard]] T& get() & {
        return std::get<T>(m_content);
    }
    template <class T>
    [[nodiscard]] const T& get() const& {
        return std::get<T>(m_content);
    }
    template <class T>
    [[nodiscard]] T&& get() && {
        return std::get<T>(std::move(m_content));
    }

    /// Calls the visitor with the content and returns what it returns.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) {
        return std::visit(std::forward<Visitor>(visitor), m_content);
    }
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return std::visit(std::forward<Visitor>(visitor), m_content);
    }

    /// Same kind and equal content: the signed 5, the unsigned 5 and 5.0 are three values. Doubles
    /// compare as usual, so NaN equals nothing and 0.0 equals -0.0.
    [[nodiscard]] bool operator==(const Value& other) const;

    /// Replaces the content by any JSON value. Throws the decoder's exceptions and then leaves the
    /// content alone.
    void decode(utils::json::decoder::Value& source, DecodingOptions options = {});

    /// Writes the content. A number is read back as the kind it was written from, but an unsigned
    /// integer that fits the signed kind comes back signed; a double that JSON cannot hold
    /// (infinite, NaN) is written as null.
    void encode(utils::json::encoder::Value& target) const;

    /// Reads a whole JSON text; the error is a message for the user.
    [[nodiscard]] static tl::expected<Value, std::wstring> fromString(std::string_view text,
                                                                      DecodingOptions options = {});
    [[nodiscard]] std::string toString(utils::json::encoder::Document::Format format) const;

private:
    friend class Array;
    friend class Object;

    /// Decodes into a value that is null and is of no use after an exception.
    void decodeContent(utils::json::decoder::Value& source, DecodingOptions options);

    std::variant<Object, Array, std::string, std::int64_t, std::uint64_t, double, bool, Null>
        m_content;
};

} // namespace corvane::workbench::json
