#include <corvane/utils/json/encoder/Document.hpp>

namespace corvane::utils::json::encoder {

Document::Document(io::OutputStream<char>& stream, Format format)
    : writer_(stream, format == Format::Indented) {}

Document::~Document() = default;

Value Document::root() noexcept {
    return Value(writer_, detail::Writer::kRoot);
}

void Document::close() {
    if (!isClosed_) {
        isClosed_ = true;
        writer_.close();
    }
}

} // namespace corvane::utils::json::encoder
