#include "ProgressInputStream.hpp"

#include <stdexcept>
#include <string_view>

namespace corvane::workbench::host {

ProgressInputStream::ProgressInputStream(corvane::utils::io::InputStream<char>& source,
                                         const std::function<bool(const LoadProgress&)>& callback,
                                         std::uint64_t total)
    : _source(source), _report(callback, LoadProgress::Stage::Reading, total),
      _block(std::size_t{64} * 1024) {}

ProgressInputStream::~ProgressInputStream() = default;

bool ProgressInputStream::refill() {
    const std::size_t count = _source.read(_block.data(), _block.size());
    setBuffer(std::string_view(_block.data(), count));
    if (!(count != 0 ? _report.advance(count) : _report.finish())) {
        throw std::runtime_error("the load was given up");
    }
    return count != 0;
}

} // namespace corvane::workbench::host
