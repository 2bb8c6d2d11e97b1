#include <corvane/utils/memory/detail/ExitList.hpp>

#include <mutex>
#include <utility>

namespace corvane::utils::memory::detail {

namespace {

/// Its destructor is what runs at process exit.
class ExitList {
public:
    ~ExitList() {
        // A destructor may enter further objects.
        while (ExitNode* const node = takeFirst()) {
            node->destroy(node->object);
        }
    }

    void add(ExitNode& node) noexcept {
        const std::lock_guard lock(mutex_);
        node.next = first_;
        first_ = &node;
    }

private:
    [[nodiscard]] ExitNode* takeFirst() noexcept {
        const std::lock_guard lock(mutex_);
        return first_ == nullptr ? nullptr : std::exchange(first_, first_->next);
    }

    std::mutex mutex_;
    ExitNode* first_ = nullptr;
};

} // namespace

void destroyAtExit(ExitNode& node) noexcept {
    static ExitList list;
    list.add(node);
}

} // namespace corvane::utils::memory::detail
