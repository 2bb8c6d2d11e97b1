#include <corvane/utils/json/decoder/Document.hpp>

#include "Scanner.hpp"
#include "syntaxError.hpp"
#include "whitespace.hpp"

namespace corvane::utils::json::decoder {

Document::Document(io::InputStream<char>& stream)
    : tape_(stream.readRest(storage_)), rootEnd_(detail::Scanner(tape_).scan()), root_(tape_, 0) {}

Document::~Document() = default;

void Document::finish() const {
    std::size_t position = rootEnd_;
    while (position != tape_.text.size() && detail::isWhitespace(tape_.text[position])) {
        ++position;
    }
    if (position != tape_.text.size()) {
        detail::throwSyntaxError(tape_, position, "unexpected text after the end of the value");
    }
}

} // namespace corvane::utils::json::decoder
