#pragma once

#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace corvane::utils::json::decoder {

/// A walk over the elements of a JSON array in the order of the text, once from front to back.
/// Valid while its Document lives.
class CORVANE_UTILS_EXPORT Array {
public:
    /// A single-pass iterator: all iterators of an array stand at the same element.
    class Iterator {
    public:
        /// What a standard input iterator declares.
        /// @{
        using iterator_concept = std::input_iterator_tag;
        using value_type = Value;
        using difference_type = std::ptrdiff_t;
        /// @}

        /// The element; valid until the walk goes on.
        [[nodiscard]] Value& operator*() const noexcept { return array_->value_; }
        /// Goes on to the next element, with all iterators of the array.
        /// @{
        Iterator& operator++() noexcept {
            array_->value_.index_ = array_->tape_->behind(array_->value_.index_);
            return *this;
        }
        void operator++(int) noexcept { ++*this; }
        /// @}

        /// Whether the walk has ended.
        [[nodiscard]] friend bool operator==(const Iterator& iterator,
                                             std::default_sentinel_t) noexcept {
            return iterator.array_->value_.index_ == iterator.array_->behind_;
        }

    private:
        friend class Array;

        explicit Iterator(Array& array) noexcept : array_(&array) {}

        Array* array_;
    };

    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;

    /// Starts the walk, or stays where it is when it has started.
    [[nodiscard]] Iterator begin() noexcept { return Iterator(*this); }
    /// The end of every walk.
    [[nodiscard]] static std::default_sentinel_t end() noexcept { return std::default_sentinel; }

    /// How many elements the array has in all.
    [[nodiscard]] std::size_t elementCount() const noexcept { return tape_->count(index_); }

    /// Where the array begins.
    [[nodiscard]] Location location() const;

private:
    friend class Value;

    Array(const detail::Tape& tape, std::uint32_t index) noexcept
        : tape_(&tape), index_(index), behind_(tape.behind(index)),
          value_(tape, detail::Tape::within(index)) {}

    const detail::Tape* tape_;
    std::uint32_t index_;
    std::uint32_t behind_;
    Value value_;
};

inline Array Value::asArray() const {
    if (!isArray()) {
        throwUnexpected("an array");
    }
    return Array(*tape_, index_);
}

} // namespace corvane::utils::json::decoder
