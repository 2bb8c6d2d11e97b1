#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>

namespace corvane::workbench::bindings::internal {

/// The subscribers of one property or container, safe to change while they are being called.
///
/// They lie in one block of memory, in the order of their ids, which only grow. While forEach runs,
/// anything may be inserted and erased, and nothing moves: what does not fit into the block goes
/// into a further one, until a later insertion joins them; what is erased is marked, and its
/// callbacks are kept until the outermost forEach has ended, so that none is destroyed while it
/// runs. Neither walking nor erasing allocates, and without subscribers there is no memory.
template <class Id, class Callbacks>
class SubscriptionList {
public:
    struct Subscriber {
        Id id;
        bool erased = false;
        std::optional<Callbacks> callbacks; // none only if erased
    };

    SubscriptionList() noexcept = default;
    /// Copies the subscribers, not the walks that are running over them.
    SubscriptionList(const SubscriptionList& other)
        : first_(other.empty() ? nullptr
                               : other.template joined<const Subscriber&>(other.size()).release()) {
    }
    /// Leaves the source without subscribers.
    SubscriptionList(SubscriptionList&& other) noexcept
        : first_(std::exchange(other.first_, nullptr)) {}
    SubscriptionList& operator=(SubscriptionList other) noexcept {
        std::swap(first_, other.first_);
        return *this;
    }
    /// A walk that is running ends behind the subscriber that it has come to.
    ~SubscriptionList() { release(); }

    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    [[nodiscard]] std::size_t size() const noexcept { return first_ != nullptr ? first_->kept : 0; }

    /// @pre the id is greater than those inserted before
    void insert(Id id, Callbacks&& callbacks) {
        Block& block = blockWithRoom();
        assert(block.size == 0 || block.back().id < id);
        new (block.end()) Subscriber{.id = id, .callbacks = std::move(callbacks)};
        ++block.size;
        ++first_->kept;
    }

    /// An unknown id is ignored.
    void erase(Id id) noexcept {
        Subscriber* const subscriber = find(id);
        if (subscriber == nullptr || subscriber->erased) {
            return;
        }
        subscriber->erased = true;
        --first_->kept;
        if (first_->walks != 0) {
            first_->hasErased = true;
            return;
        }
        // The callbacks go when all else is done, for their destructors may come back here.
        if (empty()) {
            release();
            return;
        }
        const Callbacks erased = std::move(*subscriber->callbacks);
        subscriber->callbacks.reset();
        first_->removeErased();
    }

    /// Calls visit(subscriber) for each one in ascending order of ids, those included that are
    /// inserted meanwhile. The subscriber tells whether it was erased during its visit.
    template <class Visit>
    void forEach(Visit&& visit) const {
        if (first_ == nullptr) {
            return;
        }
        const Walk walk(*first_);
        for (Block* block = first_; block != nullptr; block = block->next) {
            // The size may grow meanwhile.
            for (std::uint32_t i = 0; i < block->size; ++i) {
                const Subscriber& subscriber = block->begin()[i];
                if (!subscriber.erased) {
                    visit(subscriber);
                }
            }
        }
    }

private:
    // Moving subscribers runs no code of theirs.
    static_assert(std::is_nothrow_move_constructible_v<Callbacks> &&
                  std::is_nothrow_move_assignable_v<Callbacks>);

    struct Block;
    struct Destroy {
        void operator()(Block* first) const noexcept {
            while (first != nullptr) {
                Block* const block = std::exchange(first, first->next);
                std::destroy(block->begin(), block->end());
                block->~Block();
                ::operator delete(block);
            }
        }
    };
    using Owner = std::unique_ptr<Block, Destroy>;

    /// The head of a piece of memory, which the subscribers follow.
    struct alignas(Subscriber) Block {
        static Owner make(std::size_t capacity) {
            void* const memory = ::operator new(sizeof(Block) + capacity * sizeof(Subscriber));
            return Owner(new (memory) Block(static_cast<std::uint32_t>(capacity)));
        }

        explicit Block(std::uint32_t places) noexcept : capacity(places) {}

        [[nodiscard]] Subscriber* begin() noexcept {
            return reinterpret_cast<Subscriber*>(this + 1);
        }
        [[nodiscard]] Subscriber* end() noexcept { return begin() + size; }
        [[nodiscard]] Subscriber& back() noexcept { return begin()[size - 1]; }

        // The following concern the whole list, of which this is the first block.

        /// Gives up the callbacks of those that were erased, while a walk still keeps all in place:
        /// the destructors may come back to the list.
        void destroyErased() noexcept {
            while (std::exchange(hasErased, false)) {
                for (Block* block = this; block != nullptr; block = block->next) {
                    for (std::uint32_t i = 0; i < block->size; ++i) {
                        if (block->begin()[i].erased) {
                            block->begin()[i].callbacks.reset();
                        }
                    }
                }
            }
        }

        /// Closes the gaps when they are at the end, or more than the subscribers.
        void removeErased() noexcept {
            while (last->size != 0 && last->back().erased) {
                std::destroy_at(&last->back());
                --last->size;
            }
            std::size_t all = 0;
            for (const Block* block = this; block != nullptr; block = block->next) {
                all += block->size;
            }
            if (all <= std::size_t{2} * kept) {
                return;
            }
            for (Block* block = this; block != nullptr; block = block->next) {
                Subscriber* const keptEnd = std::remove_if(block->begin(), block->end(),
                                                           [](const auto& s) { return s.erased; });
                std::destroy(keptEnd, block->end());
                block->size = static_cast<std::uint32_t>(keptEnd - block->begin());
            }
        }

        Block* next = nullptr;
        std::uint32_t size = 0; // with those that were erased
        std::uint32_t capacity;

        // Used in the first block only.
        Block* last = this;
        std::uint32_t kept = 0; // in all blocks, without those that were erased
        std::uint32_t walks = 0;
        bool hasErased = false;   // whose callbacks are still there
        bool isAbandoned = false; // by the list, to the walk that is running
    };

    class Walk {
    public:
        explicit Walk(Block& first) noexcept : first_(first) { ++first_.walks; }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        ~Walk() {
            if (first_.hasErased && first_.walks == 1) {
                clean(first_);
            } else {
                --first_.walks;
            }
        }

    private:
        Block& first_;
    };

    /// Ends the outermost walk over a list from which something was erased.
    static void clean(Block& first) noexcept {
        first.destroyErased();
        --first.walks;
        if (first.isAbandoned) {
            Destroy()(&first);
        } else {
            first.removeErased();
        }
    }

    [[nodiscard]] Subscriber* find(Id id) const noexcept {
        for (Block* block = first_; block != nullptr; block = block->next) {
            if (block->size != 0 && block->back().id >= id) {
                // Who came last is often the first to go.
                Subscriber* const found =
                    block->back().id == id ? &block->back()
                                           : std::ranges::lower_bound(block->begin(), block->end(),
                                                                      id, {}, &Subscriber::id);
                return found->id == id ? found : nullptr;
            }
        }
        return nullptr;
    }

    [[nodiscard]] Block& blockWithRoom() {
        if (first_ == nullptr) {
            first_ = Block::make(1).release();
            return *first_;
        }
        const bool isFull = first_->last->size == first_->last->capacity;
        if (first_->walks == 0 && (isFull || first_->next != nullptr)) {
            Owner block = joined<Subscriber&&>(std::max<std::size_t>(2 * size(), 1));
            Destroy()(std::exchange(first_, block.release()));
        } else if (isFull) {
            first_->last->next = Block::make(std::max<std::size_t>(size(), 1)).release();
            first_->last = first_->last->next;
        }
        return *first_->last;
    }

    /// The subscribers in a block of their own, copied or moved.
    template <class Reference>
    [[nodiscard]] Owner joined(std::size_t capacity) const {
        Owner result = Block::make(capacity);
        for (Block* block = first_; block != nullptr; block = block->next) {
            for (Subscriber* subscriber = block->begin(); subscriber != block->end();
                 ++subscriber) {
                if (!subscriber->erased) {
                    new (result->end()) Subscriber(static_cast<Reference>(*subscriber));
                    ++result->size;
                    ++result->kept;
                }
            }
        }
        return result;
    }

    void release() noexcept {
        Block* const first = std::exchange(first_, nullptr);
        if (first == nullptr || first->walks == 0) {
            Destroy()(first);
            return;
        }
        for (Block* block = first; block != nullptr; block = block->next) {
            for (Subscriber* subscriber = block->begin(); subscriber != block->end();
                 ++subscriber) {
                subscriber->erased = true;
            }
        }
        first->hasErased = true;
        first->isAbandoned = true;
    }

    Block* first_ = nullptr;
};

} // namespace corvane::workbench::bindings::internal
