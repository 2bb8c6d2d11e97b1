#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace corvane::workbench::bindings::internal {

/// A vector that is empty most of the time, and then takes one pointer.
template <class Item>
class SparseVector {
public:
    SparseVector() noexcept = default;
    template <class Iterator>
    SparseVector(Iterator first, Iterator last)
        : vector_(first != last ? std::make_unique<std::vector<Item>>(first, last) : nullptr) {}
    SparseVector(const SparseVector& other)
        : vector_(other.vector_ ? std::make_unique<std::vector<Item>>(*other.vector_) : nullptr) {}
    SparseVector(SparseVector&&) noexcept = default;
    SparseVector& operator=(SparseVector other) noexcept {
        vector_.swap(other.vector_);
        return *this;
    }
    ~SparseVector() = default;

    void append(Item item) {
        if (!vector_) {
            vector_ = std::make_unique<std::vector<Item>>();
        }
        vector_->push_back(std::move(item));
    }

    [[nodiscard]] bool empty() const noexcept { return !vector_ || vector_->empty(); }
    [[nodiscard]] std::span<Item> items() noexcept {
        return vector_ ? std::span<Item>(*vector_) : std::span<Item>();
    }
    [[nodiscard]] std::span<const Item> items() const noexcept {
        return vector_ ? std::span<const Item>(*vector_) : std::span<const Item>();
    }

private:
    std::unique_ptr<std::vector<Item>> vector_;
};

} // namespace corvane::workbench::bindings::internal
