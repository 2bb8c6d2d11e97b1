#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/utils/export.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Member.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/Tape.hpp>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace corvane::utils::json::decoder {

/// A walk over the members of a JSON object in the order of the text, once from front to back.
/// Valid while its Document lives.
class CORVANE_UTILS_EXPORT Object {
public:
    /// Sees a member before the walk delivers it; true when it has consumed the member.
    using Filter = core::function_ref<bool(const Name&, Value&)>;

    /// A single-pass iterator: all iterators of an object stand at the same member.
    class Iterator {
    public:
        /// What a standard input iterator declares.
        /// @{
        using iterator_concept = std::input_iterator_tag;
        using value_type = Member;
        using difference_type = std::ptrdiff_t;
        /// @}

        /// The member; its value is valid until the walk goes on.
        [[nodiscard]] Member operator*() const noexcept {
            return Member{object_->name_, object_->value_};
        }
        /// Goes on to the next member, with all iterators of the object. Throws what a filter
        /// throws.
        /// @{
        Iterator& operator++() {
            object_->advance();
            return *this;
        }
        void operator++(int) { ++*this; }
        /// @}

        /// Whether the walk has ended.
        [[nodiscard]] friend bool operator==(const Iterator& iterator,
                                             std::default_sentinel_t) noexcept {
            return iterator.object_->atEnd_;
        }

    private:
        friend class Object;

        explicit Iterator(Object& object) noexcept : object_(&object) {}

        Object* object_;
    };

    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object() = default;

    /// Has the filter called for every member that the walk has not reached yet. Filters are
    /// called in the order in which they were added until one consumes the member, which is then
    /// not delivered. What a filter refers to must outlive the walk. What a filter throws comes
    /// out of the walk.
    void addFilter(Filter filter) { filters_.push_back(filter); }

    /// Has a filter, as addFilter() adds it, called no longer than the scope lives. Scopes of one
    /// object end in the reverse order of their beginning, and before the object.
    class FilterScope {
    public:
        /// Adds the filter, behind those that the object has.
        FilterScope(Object& object, Filter filter)
            : object_(object), index_(object.filters_.size()) {
            object.addFilter(filter);
        }
        FilterScope(const FilterScope&) = delete;
        FilterScope& operator=(const FilterScope&) = delete;
        ~FilterScope() {
            object_.filters_.erase(object_.filters_.begin() + static_cast<std::ptrdiff_t>(index_));
        }

    private:
        Object& object_;
        std::size_t index_;
    };

    /// Starts the walk, or stays where it is when it has started.
    [[nodiscard]] Iterator begin() {
        if (!started_) {
            started_ = true;
            advance();
        }
        return Iterator(*this);
    }
    /// The end of every walk.
    [[nodiscard]] static std::default_sentinel_t end() noexcept { return std::default_sentinel; }

    /// How many members the object has in all, those for filters included.
    [[nodiscard]] std::size_t memberCount() const noexcept { return tape_->count(index_); }

    /// Where the object begins.
    [[nodiscard]] Location location() const;

private:
    friend class Value;

    Object(const detail::Tape& tape, std::uint32_t index) noexcept
        : tape_(&tape), index_(index), next_(detail::Tape::within(index)),
          behind_(tape.behind(index)), value_(tape, index) {}

    void advance() {
        do {
            if (next_ == behind_) {
                atEnd_ = true;
                return;
            }
            name_ = Name(*tape_, next_);
            value_.index_ = next_ + 1;
            next_ = tape_->behind(next_ + 1);
        } while (!filters_.empty() && isConsumed());
    }
    [[nodiscard]] bool isConsumed();

    const detail::Tape* tape_;
    std::uint32_t index_;
    std::uint32_t next_;
    std::uint32_t behind_;
    bool started_ = false;
    bool atEnd_ = false;
    Name name_;
    Value value_;
    std::vector<Filter> filters_;
};

inline Object Value::asObject() const {
    if (!isObject()) {
        throwUnexpected("an object");
    }
    return Object(*tape_, index_);
}

} // namespace corvane::utils::json::decoder
