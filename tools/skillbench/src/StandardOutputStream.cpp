#include "StandardOutputStream.hpp"

#include <ios>
#include <ostream>

namespace corvane::skillbench {

StandardOutputStream::StandardOutputStream(std::ostream& target) : target_(target) {
    setBuffer(block_.data(), block_.data(), block_.data() + block_.size());
}

StandardOutputStream::~StandardOutputStream() = default;

std::string StandardOutputStream::description() const {
    return "standard output";
}

void StandardOutputStream::flushBuffer() {
    target_.write(bufferBegin(), static_cast<std::streamsize>(bufferPosition() - bufferBegin()));
    setBuffer(block_.data(), block_.data(), block_.data() + block_.size());
}

} // namespace corvane::skillbench
