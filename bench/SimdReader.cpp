// The limit for reading: a document that cannot be changed.
#include "Reader.hpp"

#include <simdjson.h>

namespace corvane::bench {
namespace {

class SimdDocument final : public ReadDocument {
public:
    explicit SimdDocument(std::string_view text)
        : m_root(m_parser.parse(text.data(), text.size())) {}

    [[nodiscard]] std::string write() const override { return simdjson::minify(m_root); }

private:
    simdjson::dom::parser m_parser;
    simdjson::dom::element m_root;
};

const Reader kReader("simdjson", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<SimdDocument>(text);
});

} // namespace
} // namespace corvane::bench
