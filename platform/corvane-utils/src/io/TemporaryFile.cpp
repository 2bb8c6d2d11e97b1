#include "TemporaryFile.hpp"

#include <corvane/utils/io/temporaryFiles.hpp>

#include <array>
#include <thread>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace corvane::utils::io {

namespace {

using Character = std::filesystem::path::value_type;
using Slot = std::atomic<const Character*>;
static_assert(Slot::is_always_lock_free, "a signal handler uses the slots");

/// The names of the temporary files there are; null where a slot is free.
std::array<Slot, 64> slots;
/// Stands in a slot while removeTemporaryFiles() uses the name.
constexpr Character kInUse = 0;

void removeFile(const Character* name) noexcept {
#ifdef _WIN32
    DeleteFileW(name);
#else
    unlink(name);
#endif
}

Slot* enter(const Character* name) noexcept {
    for (Slot& slot : slots) {
        const Character* none = nullptr;
        if (slot.compare_exchange_strong(none, name)) {
            return &slot;
        }
    }
    return nullptr;
}

} // namespace

TemporaryFile::TemporaryFile(std::filesystem::path path) noexcept
    : path_(std::move(path)), slot_(enter(path_.c_str())) {}

TemporaryFile::~TemporaryFile() {
    if (!released_) {
        removeFile(path_.c_str());
    }
    if (slot_ != nullptr) {
        // The name must live until nobody uses it.
        const Character* own = path_.c_str();
        while (!slot_->compare_exchange_weak(own, nullptr)) {
            own = path_.c_str();
            std::this_thread::yield();
        }
    }
}

void removeTemporaryFiles() noexcept {
    for (Slot& slot : slots) {
        const Character* name = slot.load();
        if (name != nullptr && name != &kInUse && slot.compare_exchange_strong(name, &kInUse)) {
            removeFile(name);
            slot.store(name);
        }
    }
}

} // namespace corvane::utils::io
