#pragma once

#include "ProgressReport.hpp"
#include <corvane/utils/io/InputStream.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace corvane::workbench::host {

/// Passes a stream on and reports how much of it has been read.
class ProgressInputStream final : public utils::io::InputStream<char> {
public:
    /// The total may be 0 for unknown. Source and callback must outlive the stream.
    ProgressInputStream(utils::io::InputStream<char>& source,
                        const std::function<bool(const LoadProgress&)>& callback,
                        std::uint64_t total);
    ~ProgressInputStream() override;

    [[nodiscard]] std::string description() const override { return source_.description(); }

private:
    /// Throws std::runtime_error when the callback says to give up.
    bool refill() override;

    utils::io::InputStream<char>& source_;
    ProgressReport report_;
    std::vector<char> block_;
};

} // namespace corvane::workbench::host
