#pragma once

#include <corvane/workbench/export.hpp>

#include <compare>
#include <cstddef>
#include <iterator>
#include <memory>

namespace corvane::workbench::model {

class Element;

namespace internal {
class AbstractChildElementAccessor;
} // namespace internal

/// Random access to the children of an element.
///
/// A small view of a collection that the workbench owns; it must not outlive that collection. The
/// number of children is read once, when the accessor is made: an accessor made before children
/// came or went keeps reporting the old number, and children beyond the new one must not be asked
/// for.
class CORVANE_WORKBENCH_EXPORT ChildElementAccessor {
public:
    class Iterator;

    /// What a standard container declares; the elements can only be read.
    /// @{
    using value_type = Element;
    using reference = const Element&;
    using const_reference = const Element&;
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;
    using iterator = Iterator;
    using const_iterator = Iterator;
    /// @}

    /// No children.
    ChildElementAccessor();

    /// As read when the accessor was made.
    /// @{
    [[nodiscard]] std::size_t size() const noexcept { return count_; }
    [[nodiscard]] bool empty() const noexcept { return count_ == 0; }
    /// @}

    /// Throws std::out_of_range, with the index and the number of children in its text, when
    /// `index` is not below size().
    [[nodiscard]] const Element& at(std::size_t index) const;

    /// Precondition: `index` is below size().
    [[nodiscard]] const Element& operator[](std::size_t index) const;

    /// Precondition: there are children.
    /// @{
    [[nodiscard]] const Element& front() const;
    [[nodiscard]] const Element& back() const;
    /// @}

    /// Iterators refer to this accessor, not to a copy of it.
    /// @{
    [[nodiscard]] Iterator begin() const noexcept;
    [[nodiscard]] Iterator end() const noexcept;
    [[nodiscard]] Iterator cbegin() const noexcept;
    [[nodiscard]] Iterator cend() const noexcept;
    [[nodiscard]] std::reverse_iterator<Iterator> rbegin() const noexcept;
    [[nodiscard]] std::reverse_iterator<Iterator> rend() const noexcept;
    [[nodiscard]] std::reverse_iterator<Iterator> crbegin() const noexcept;
    [[nodiscard]] std::reverse_iterator<Iterator> crend() const noexcept;
    /// @}

private:
    // Its conversion operator makes the accessors that have children.
    friend class internal::AbstractChildElementAccessor;

    struct InternalConstructorTag {
        explicit InternalConstructorTag() = default;
    };
    static constexpr InternalConstructorTag kInternalConstructor{};

    ChildElementAccessor(InternalConstructorTag,
                         const internal::AbstractChildElementAccessor& collection);

    // The collection of those accessors that have none: one for the whole process.
    [[nodiscard]] static const internal::AbstractChildElementAccessor& emptyCollection();

    const internal::AbstractChildElementAccessor* collection_;
    std::size_t count_;
};

/// A random-access iterator over the children. It is valid as long as the accessor that it came
/// from; iterators of different accessors must not be ordered or subtracted.
class ChildElementAccessor::Iterator {
public:
    /// What a standard iterator declares; the elements can only be read.
    /// @{
    using iterator_category = std::random_access_iterator_tag;
    using value_type = Element;
    using difference_type = std::ptrdiff_t;
    using pointer = const Element*;
    using reference = const Element&;
    /// @}

    /// An iterator that can only be assigned to.
    Iterator() = default;

    /// @pre the position is that of a child
    /// @{
    [[nodiscard]] reference operator*() const { return (*accessor_)[index_]; }
    [[nodiscard]] pointer operator->() const { return std::addressof(**this); }
    [[nodiscard]] reference operator[](difference_type offset) const { return *(*this + offset); }
    /// @}

    /// Distances count children.
    /// @{
    Iterator& operator++() noexcept { return *this += 1; }
    Iterator& operator--() noexcept { return *this -= 1; }

    Iterator operator++(int) noexcept {
        Iterator before = *this;
        ++*this;
        return before;
    }
    Iterator operator--(int) noexcept {
        Iterator before = *this;
        --*this;
        return before;
    }

    Iterator& operator+=(difference_type offset) noexcept {
        index_ += static_cast<std::size_t>(offset);
        return *this;
    }
    Iterator& operator-=(difference_type offset) noexcept {
        index_ -= static_cast<std::size_t>(offset);
        return *this;
    }

    [[nodiscard]] friend Iterator operator+(Iterator iterator, difference_type offset) noexcept {
        return iterator += offset;
    }
    [[nodiscard]] friend Iterator operator+(difference_type offset, Iterator iterator) noexcept {
        return iterator += offset;
    }
    [[nodiscard]] friend Iterator operator-(Iterator iterator, difference_type offset) noexcept {
        return iterator -= offset;
    }
    [[nodiscard]] friend difference_type operator-(const Iterator& left,
                                                   const Iterator& right) noexcept {
        return static_cast<difference_type>(left.index_ - right.index_);
    }
    /// @}

    /// Iterators of different accessors are never equal and have no order.
    /// @{
    friend bool operator==(const Iterator&, const Iterator&) noexcept = default;
    friend std::strong_ordering operator<=>(const Iterator& left, const Iterator& right) noexcept {
        return left.index_ <=> right.index_;
    }
    /// @}

private:
    friend class ChildElementAccessor;

    Iterator(const ChildElementAccessor& accessor, std::size_t index) noexcept
        : accessor_(&accessor), index_(index) {}

    const ChildElementAccessor* accessor_ = nullptr;
    std::size_t index_ = 0;
};

} // namespace corvane::workbench::model
