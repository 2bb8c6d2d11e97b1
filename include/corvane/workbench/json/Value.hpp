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

namespace internal {

template <class T, class... Types>
concept OneOf = (std::same_as<T, Types> || ...);

/// A type of whole numbers, of any size; none of characters, and not bool.
template <class T>
concept Integer = std::integral<T> && !OneOf<T, bool, char, wchar_t, char8_t, char16_t, char32_t>;

} // namespace internal

/// Any JSON value held in memory, for configuration that is kept without knowing its meaning.
///
/// A value type; not synchronised. Copying, comparing, writing and destroying walk the nested
/// values recursively: what the decoder accepts (512 levels) fits into 300 KiB of stack.
class CORVANE_WORKBENCH_EXPORT Value {
public:
    /// The content of a value that is null.
    struct Null {
        /// All are equal.
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
    Value() noexcept : null_(), kind_(Kind::Null) {}
    /// Takes the content over.
    /// @{
    Value(Null) noexcept : Value() {}
    Value(Object object) noexcept : object_(std::move(object)), kind_(Kind::Object) {}
    Value(Array array) noexcept : array_(std::move(array)), kind_(Kind::Array) {}
    /// @}

    /// UTF-8.
    /// @{
    Value(std::string text);
    Value(std::string_view text);
    Value(const char* text);
    /// @}

    Value(std::nullptr_t) = delete;
    /// Exactly a bool: pointers, numbers and what only converts to one do not become one.
    template <std::same_as<bool> T>
    Value(T boolean) noexcept : boolean_(boolean), kind_(Kind::Boolean) {}
    /// Signed integer types become a signed integer, unsigned ones an unsigned integer. Characters
    /// and enumerators are no integers.
    /// @{
    template <internal::Integer T>
        requires std::signed_integral<T>
    Value(T number) noexcept : signedInteger_(number), kind_(Kind::SignedInteger) {}
    template <internal::Integer T>
        requires std::unsigned_integral<T>
    Value(T number) noexcept : unsignedInteger_(number), kind_(Kind::UnsignedInteger) {}
    /// @}

    /// A float or double; a long double would lose digits.
    template <std::floating_point T>
        requires(sizeof(T) <= sizeof(double))
    Value(T number) noexcept : double_(number), kind_(Kind::Double) {}

    /// Copies the nested values too.
    Value(const Value& other);
    /// Leaves `other` null.
    Value(Value&& other) noexcept : Value() { take(other); }
    /// Also safe when `other` is nested in this value.
    Value& operator=(const Value& other);
    /// Leaves `other` null, also when it is nested in this value.
    Value& operator=(Value&& other) noexcept;
    ~Value() { clear(); }

    /// Which alternative the content is.
    [[nodiscard]] Kind kind() const noexcept { return kind_; }

    /// T is one of the alternatives: Object, Array, std::string, std::int64_t, std::uint64_t,
    /// double, bool, Null.
    template <class T>
    [[nodiscard]] bool is() const noexcept {
        return kind_ == kKindOf<T>;
    }
    /// The content if it is of that kind, else null.
    /// @{
    template <class T>
    [[nodiscard]] T* getIf() noexcept {
        return is<T>() ? &content<T>(*this) : nullptr;
    }
    template <class T>
    [[nodiscard]] const T* getIf() const noexcept {
        return is<T>() ? &content<T>(*this) : nullptr;
    }
    /// @}

    /// The content; throws std::bad_variant_access if it is of another kind.
    /// @{
    template <class T>
    [[nodiscard]] T& get() & {
        return checked<T>(*this);
    }
    template <class T>
    [[nodiscard]] const T& get() const& {
        return checked<T>(*this);
    }
    template <class T>
    [[nodiscard]] T&& get() && {
        return std::move(checked<T>(*this));
    }
    /// @}

    /// Calls the visitor with the content and returns what it returns, one type for every kind.
    /// @{
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) {
        return visit(*this, std::forward<Visitor>(visitor));
    }
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        return visit(*this, std::forward<Visitor>(visitor));
    }
    /// @}

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
    /// The value as a JSON text (UTF-8). See encode() for what JSON cannot hold.
    [[nodiscard]] std::string toString(utils::json::encoder::Document::Format format) const;

private:
    friend class Array;
    friend class Object;

    /// Decodes into a value that is null and is of no use after an exception.
    void decodeContent(utils::json::decoder::Value& source, DecodingOptions options);
    void decodeNumber(const utils::json::decoder::Value& source);
    void decodeContainer(utils::json::decoder::Value& source, DecodingOptions options);

    /// encode(), to be inlined where values are written in a row.
    void encodeContent(utils::json::encoder::Value& target) const;

    template <class T>
    static constexpr Kind kKindOf = [] {
        if constexpr (std::same_as<T, Object>) {
            return Kind::Object;
        } else if constexpr (std::same_as<T, Array>) {
            return Kind::Array;
        } else if constexpr (std::same_as<T, std::string>) {
            return Kind::String;
        } else if constexpr (std::same_as<T, std::int64_t>) {
            return Kind::SignedInteger;
        } else if constexpr (std::same_as<T, std::uint64_t>) {
            return Kind::UnsignedInteger;
        } else if constexpr (std::same_as<T, double>) {
            return Kind::Double;
        } else if constexpr (std::same_as<T, bool>) {
            return Kind::Boolean;
        } else {
            static_assert(std::same_as<T, Null>, "not an alternative of json::Value");
            return Kind::Null;
        }
    }();

    /// The content of a value, constant or not, that is of that kind.
    template <class T, class Self>
    [[nodiscard]] static auto& content(Self& value) noexcept {
        if constexpr (std::same_as<T, Object>) {
            return value.object_;
        } else if constexpr (std::same_as<T, Array>) {
            return value.array_;
        } else if constexpr (std::same_as<T, std::string>) {
            return static_cast<std::conditional_t<std::is_const_v<Self>, const T, T>&>(
                *value.text_);
        } else if constexpr (std::same_as<T, std::int64_t>) {
            return value.signedInteger_;
        } else if constexpr (std::same_as<T, std::uint64_t>) {
            return value.unsignedInteger_;
        } else if constexpr (std::same_as<T, double>) {
            return value.double_;
        } else if constexpr (std::same_as<T, bool>) {
            return value.boolean_;
        } else {
            return value.null_;
        }
    }

    template <class T, class Self>
    [[nodiscard]] static auto& checked(Self& value) {
        if (!value.template is<T>()) {
            throw std::bad_variant_access();
        }
        return content<T>(value);
    }

    template <class Self, class Visitor>
    static decltype(auto) visit(Self& value, Visitor&& visitor) {
        switch (value.kind_) {
        case Kind::Object:
            return std::forward<Visitor>(visitor)(value.object_);
        case Kind::Array:
            return std::forward<Visitor>(visitor)(value.array_);
        case Kind::String:
            return std::forward<Visitor>(visitor)(content<std::string>(value));
        case Kind::SignedInteger:
            return std::forward<Visitor>(visitor)(value.signedInteger_);
        case Kind::UnsignedInteger:
            return std::forward<Visitor>(visitor)(value.unsignedInteger_);
        case Kind::Double:
            return std::forward<Visitor>(visitor)(value.double_);
        case Kind::Boolean:
            return std::forward<Visitor>(visitor)(value.boolean_);
        case Kind::Null:
            break;
        }
        return std::forward<Visitor>(visitor)(value.null_);
    }

    /// Makes the value null.
    void clear() noexcept {
        if (kind_ <= Kind::String) {
            destroyContent();
        }
        kind_ = Kind::Null;
    }
    void destroyContent() noexcept;
    /// Moves the content of `other`, which becomes null, into this value, which is null.
    void take(Value& other) noexcept;
    void makeText(std::string_view text);

    // Each alternative takes one word: a std::string, much larger, is held through a pointer.
    union {
        Object object_;
        Array array_;
        std::string* text_;
        std::int64_t signedInteger_;
        std::uint64_t unsignedInteger_;
        double double_;
        bool boolean_;
        Null null_;
    };
    Kind kind_;
};

} // namespace corvane::workbench::json
