#include <corvane/workbench/config/internal/ReferenceKeyListener.hpp>

namespace corvane::workbench::config::internal {

namespace {

thread_local ReferenceKeyListener* newestListener = nullptr;

} // namespace

ReferenceKeyListener::ReferenceKeyListener() noexcept : older_(newestListener) {
    newestListener = this;
}

ReferenceKeyListener::~ReferenceKeyListener() {
    newestListener = older_;
}

ReferenceKeyListener* ReferenceKeyListener::newest() noexcept {
    return newestListener;
}

} // namespace corvane::workbench::config::internal
