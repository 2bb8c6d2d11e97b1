#pragma once

#include <corvane/utils/io/OutputStream.hpp>

#include <array>
#include <iosfwd>
#include <string>

namespace corvane::skillbench {

/// Writes to a standard stream, for what only knows this project's own streams.
///
/// The standard stream must outlive this one; flush() hands it everything.
class StandardOutputStream final : public utils::io::OutputStream<char> {
public:
    explicit StandardOutputStream(std::ostream& target);
    ~StandardOutputStream() override;

    [[nodiscard]] std::string description() const override;

private:
    void flushBuffer() override;

    std::ostream& target_;
    std::array<char, 4096> block_;
};

} // namespace corvane::skillbench
