#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/json/DecodingOptions.hpp>
#include <corvane/workbench/json/internal/Sequence.hpp>

#include <tl/expected.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace corvane::utils::json::decoder {
class Name;
class Object;
class Value;
} // namespace corvane::utils::json::decoder
namespace corvane::utils::json::encoder {
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::json {

class Value;

namespace internal {

class MemberIndex;

template <class T>
concept MemberFilterFunction = std::is_invocable_r_v<bool, T&, const utils::json::decoder::Name&,
                                                     utils::json::decoder::Value&>;

} // namespace internal

/// A JSON object held in memory: members, each a name and a value, in the order in which they were
/// read or added. To use the members include json/Value.hpp.
///
/// A value type; not synchronised. References, pointers and iterators to members follow the rules
/// of std::vector. Decoding refuses a name that comes twice; appending does not look.
class CORVANE_WORKBENCH_EXPORT Object {
public:
    /// A name (UTF-8) and its value.
    using Member = std::pair<std::string, Value>;
    /// Iterators are pointers: the members stand one behind the other.
    /// @{
    using value_type = Member;
    using iterator = Member*;
    using const_iterator = const Member*;
    /// @}

    /// A member filter that refuses the names which an element's JSON object reserves for itself:
    /// "name", "UUID", "ACL" and "children". For a skill that reads its own object out of an
    /// element's object.
    class CORVANE_WORKBENCH_EXPORT CorvaneElementFilter {
    public:
        /// Throws the decoder's exception, located at the name, for a reserved name; leaves every
        /// other member to the decoding (returns false).
        bool operator()(const utils::json::decoder::Name& name,
                        utils::json::decoder::Value& value) const;
    };
    /// The filter, ready for use; it has no state.
    static const CorvaneElementFilter kCorvaneElementFilter;

    Object() noexcept;
    /// Copies the nested values too.
    Object(const Object& other);
    /// Leaves `other` empty.
    Object(Object&& other) noexcept;
    /// Also safe when `other` is nested in this object.
    Object& operator=(const Object& other);
    /// Leaves `other` empty, also when it is nested in this object.
    Object& operator=(Object&& other) noexcept;
    ~Object();

    /// As in std::vector.
    /// @{
    [[nodiscard]] bool empty() const noexcept;
    [[nodiscard]] std::size_t size() const noexcept;
    [[nodiscard]] iterator begin() noexcept;
    [[nodiscard]] iterator end() noexcept;
    [[nodiscard]] const_iterator begin() const noexcept;
    [[nodiscard]] const_iterator end() const noexcept;
    /// @}

    /// The value of the first member of that name, or null. Searches from the front.
    /// @{
    [[nodiscard]] Value* find(std::string_view name) noexcept;
    [[nodiscard]] const Value* find(std::string_view name) const noexcept;
    /// @}

    /// Makes room for that many members in all.
    void reserve(std::size_t size);
    /// Adds a member at the end, also if there is one of that name; returns its value as held.
    Value& append(std::string name, Value value);
    /// Removes the first member of that name; returns whether there was one.
    bool erase(std::string_view name);
    /// Removes one member; returns the one behind it.
    iterator erase(const_iterator member);
    /// Also gives the memory back.
    void clear() noexcept;

    /// Same names and equal values position by position: the order matters.
    [[nodiscard]] bool operator==(const Object& other) const;

    /// Replaces the members by those of a JSON object. Throws the decoder's exceptions, for a name
    /// that comes twice located at its second place, and then leaves the members alone.
    /// @{
    void decode(utils::json::decoder::Value& source, DecodingOptions options = {});
    void decode(utils::json::decoder::Object& source, DecodingOptions options = {});
    /// @}

    /// The same with a filter, which sees each member before it is decoded: true consumes the
    /// member. It is called as bool(const decoder::Name&, decoder::Value&), on the object itself,
    /// and not after this call has ended, in whatever way.
    /// @{
    template <internal::MemberFilterFunction Filter>
    void decode(utils::json::decoder::Value& source, Filter&& filter,
                DecodingOptions options = {}) {
        decodeInternal(source, MemberFilter(filter), options);
    }
    template <internal::MemberFilterFunction Filter>
    void decode(utils::json::decoder::Object& source, Filter&& filter,
                DecodingOptions options = {}) {
        decodeInternal(source, MemberFilter(filter), options);
    }
    /// @}

    /// Writes the value as an object.
    void encode(utils::json::encoder::Value& target) const;
    /// Adds the members to an open object.
    void encode(utils::json::encoder::Object& target) const;

    /// Reads a whole JSON text; the error is a message for the user.
    [[nodiscard]] static tl::expected<Object, std::wstring>
    fromString(std::string_view text, DecodingOptions options = {});
    /// The same with a filter, as for decode().
    template <internal::MemberFilterFunction Filter>
    [[nodiscard]] static tl::expected<Object, std::wstring>
    fromString(std::string_view text, Filter&& filter, DecodingOptions options = {}) {
        return fromStringInternal(text, MemberFilter(filter), options);
    }
    /// The object as a JSON text (UTF-8).
    [[nodiscard]] std::string toString(utils::json::encoder::Document::Format format) const;

private:
    friend class Value;

    using MemberFilter = utils::core::function_ref<bool(const utils::json::decoder::Name&,
                                                        utils::json::decoder::Value&)>;

    void decodeInternal(utils::json::decoder::Value& source, MemberFilter filter,
                        DecodingOptions options);
    void decodeInternal(utils::json::decoder::Object& source, MemberFilter filter,
                        DecodingOptions options);
    void decodeMembers(utils::json::decoder::Object& source, DecodingOptions options);
    Value& valueOf(const utils::json::decoder::Name& name, internal::MemberIndex& index,
                   DecodingOptions options);
    static tl::expected<Object, std::wstring>
    fromStringInternal(std::string_view text, MemberFilter filter, DecodingOptions options);

    internal::Sequence<Member> members_;
};

} // namespace corvane::workbench::json
