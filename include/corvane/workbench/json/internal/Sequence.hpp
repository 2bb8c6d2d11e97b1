#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace corvane::workbench::json::internal {

/// A growing sequence that takes one pointer where it stands, so that the nested values of a
/// document stay small. The elements and their number are in one allocation; an empty sequence has
/// none.
///
/// A value type like std::vector, with its rules for references and exceptions; the element type
/// may be incomplete until something is done with the elements, and moves without throwing.
template <class T>
class Sequence {
public:
    using value_type = T;
    using iterator = T*;
    using const_iterator = const T*;

    Sequence() noexcept = default;
    Sequence(const Sequence& other) : Sequence() {
        reserve(other.size());
        for (const T& element : other) {
            emplace_back(element);
        }
    }
    Sequence(Sequence&& other) noexcept : header_(std::exchange(other.header_, nullptr)) {}
    /// What `other` is nested in may be this sequence.
    Sequence& operator=(const Sequence& other) {
        Sequence copy(other);
        std::swap(header_, copy.header_);
        return *this;
    }
    Sequence& operator=(Sequence&& other) noexcept {
        Sequence taken(std::move(other));
        std::swap(header_, taken.header_);
        return *this;
    }
    ~Sequence() {
        if (header_ != nullptr) {
            std::destroy(begin(), end());
            ::operator delete(header_);
        }
    }

    [[nodiscard]] std::size_t size() const noexcept {
        return header_ == nullptr ? 0 : header_->size;
    }
    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    [[nodiscard]] T* begin() noexcept { return elementsOf(header_); }
    [[nodiscard]] const T* begin() const noexcept { return elementsOf(header_); }
    [[nodiscard]] T* end() noexcept { return begin() + size(); }
    [[nodiscard]] const T* end() const noexcept { return begin() + size(); }
    [[nodiscard]] T& operator[](std::size_t index) noexcept { return begin()[index]; }
    [[nodiscard]] const T& operator[](std::size_t index) const noexcept { return begin()[index]; }

    void reserve(std::size_t capacity) {
        if (capacity > this->capacity()) {
            moveTo(allocate(capacity));
        }
    }

    template <class... Arguments>
    T& emplace_back(Arguments&&... arguments) {
        const std::size_t size = this->size();
        if (size < capacity()) {
            T* const element =
                std::construct_at(begin() + size, std::forward<Arguments>(arguments)...);
            ++header_->size;
            return *element;
        }
        // The arguments may refer to an element: use them before the elements move.
        Header* const header = allocate(size < kFirstCapacity / 2 ? kFirstCapacity : size * 2);
        T* element = nullptr;
        try {
            element =
                std::construct_at(elementsOf(header) + size, std::forward<Arguments>(arguments)...);
        } catch (...) {
            ::operator delete(header);
            throw;
        }
        moveTo(header);
        ++header_->size;
        return *element;
    }

    T* erase(const T* position) noexcept {
        T* const element = begin() + (position - begin());
        std::move(element + 1, end(), element);
        std::destroy_at(end() - 1);
        --header_->size;
        return element;
    }

    void clear() noexcept { *this = Sequence(); }

private:
    static constexpr std::size_t kFirstCapacity = 4;

    struct Header {
        std::uint32_t size;
        std::uint32_t capacity;
    };

    [[nodiscard]] static T* elementsOf(Header* header) noexcept {
        static_assert(alignof(T) <= sizeof(Header) &&
                      alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        return header == nullptr ? nullptr : reinterpret_cast<T*>(header + 1);
    }

    [[nodiscard]] std::size_t capacity() const noexcept {
        return header_ == nullptr ? 0 : header_->capacity;
    }

    [[nodiscard]] static Header* allocate(std::size_t capacity) {
        if (capacity > std::numeric_limits<std::uint32_t>::max()) {
            throw std::length_error("a JSON value has more than 4294967295 elements");
        }
        void* const memory = ::operator new(sizeof(Header) + capacity * sizeof(T));
        return new (memory) Header{0, static_cast<std::uint32_t>(capacity)};
    }

    /// Moves the elements to a larger allocation without elements.
    void moveTo(Header* header) noexcept {
        static_assert(std::is_nothrow_move_constructible_v<T>);
        std::uninitialized_move(begin(), end(), elementsOf(header));
        header->size = static_cast<std::uint32_t>(size());
        clear();
        header_ = header;
    }

    Header* header_ = nullptr;
};

} // namespace corvane::workbench::json::internal
