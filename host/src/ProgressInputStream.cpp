#include "ProgressInputStream.hpp"

#include <stdexcept>
#include <string_view>

namespace corvane::workbench::host {

ProgressInputStream::ProgressInputStream(utils::io::InputStream<char>& source,
                                         const std::function<bool(const LoadProgress&)>& callback,
                                         std::uint64_t total)
    : source_(source), report_(callback, LoadProgress::Stage::Reading, total),
      block_(std::size_t{64} * 1024) {}

ProgressInputStream::~ProgressInputStream() = default;

bool ProgressInputStream::refill() {
    const std::size_t count = source_.read(block_.data(), block_.size());
    setBuffer(std::string_view(block_.data(), count));
    if (!(count != 0 ? report_.advance(count) : report_.finish())) {
        throw std::runtime_error("the load was given up");
    }
    return count != 0;
}

} // namespace corvane::workbench::host
