#pragma once

// The list of objects that are destroyed at process exit, the newest first.

#include <corvane/utils/export.hpp>

namespace corvane::utils::memory::detail {

/// An entry of the list, which belongs to the object's owner: entering it allocates nothing.
struct ExitNode {
    void (*destroy)(void*) = nullptr;
    void* object = nullptr;
    ExitNode* next = nullptr;
};

/// Has node.destroy(node.object) called at process exit. The node must live until then. Safe to
/// call from any thread.
CORVANE_UTILS_EXPORT void destroyAtExit(ExitNode& node) noexcept;

} // namespace corvane::utils::memory::detail
