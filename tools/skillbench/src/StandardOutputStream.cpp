#include "StandardOutputStream.hpp"

#include <ios>
#include <ostream>

namespace corvane::skillbench {

StandardOutputStream::StandardOutputStream(std::ostream& target) : _target(target) {
    setBuffer(_block.data(), _block.data(), _block.data() + _block.size());
}

StandardOutputStream::~StandardOutputStream() = default;

std::string StandardOutputStream::description() const {
    return "standard output";
}

void StandardOutputStream::flushBuffer() {
    _target.write(bufferBegin(), static_cast<std::streamsize>(bufferPosition() - bufferBegin()));
    setBuffer(_block.data(), _block.data(), _block.data() + _block.size());
}

} // namespace corvane::skillbench
