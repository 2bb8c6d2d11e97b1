#pragma once

#include <corvane/workbench/export.hpp>

#include <string_view>

namespace corvane::utils::json::decoder {
class Location;
}

namespace corvane::workbench::config::internal {

/// Hears of every Context::ReferenceKey that is made with a place in a file, on the thread and
/// during the life of the listener. The keys themselves do not keep their places; a workbench
/// listens while it loads, so that it can say where a key stands that does not resolve.
///
/// Of several listeners on a thread only the newest one hears; they end in the reverse order of
/// their construction.
class CORVANE_WORKBENCH_EXPORT ReferenceKeyListener {
public:
    ReferenceKeyListener() noexcept;
    ReferenceKeyListener(const ReferenceKeyListener&) = delete;
    ReferenceKeyListener& operator=(const ReferenceKeyListener&) = delete;
    virtual ~ReferenceKeyListener() = 0;

    /// The listener that hears on this thread; null when there is none.
    [[nodiscard]] static ReferenceKeyListener* newest() noexcept;

    /// A key has been read. The text is valid during the call.
    virtual void keyRead(std::string_view key, const utils::json::decoder::Location& location) = 0;

private:
    ReferenceKeyListener* older_;
};

} // namespace corvane::workbench::config::internal
