// The limit for reading: a document that cannot be changed.
#include "Reader.hpp"

#include <simdjson.h>

namespace corvane::bench {
namespace {

class SimdDocument final : public ReadDocument {
public:
    explicit SimdDocument(std::string_view text) : root_(parser_.parse(text.data(), text.size())) {}

    [[nodiscard]] std::string write() const override { return simdjson::minify(root_); }

private:
    simdjson::dom::parser parser_;
    simdjson::dom::element root_;
};

const Reader kReader("simdjson", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<SimdDocument>(text);
});

} // namespace
} // namespace corvane::bench
