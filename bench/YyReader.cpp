// The limit for reading and writing: a document that cannot be changed.
#include "Reader.hpp"

#include <yyjson.h>

#include <cstddef>
#include <cstdlib>
#include <stdexcept>

namespace corvane::bench {
namespace {

class YyDocument final : public ReadDocument {
public:
    explicit YyDocument(std::string_view text)
        : document_(yyjson_read(text.data(), text.size(), YYJSON_READ_NOFLAG)) {
        if (document_ == nullptr) {
            throw std::runtime_error("yyjson refuses the text");
        }
    }
    ~YyDocument() override { yyjson_doc_free(document_); }

    [[nodiscard]] std::string write() const override {
        std::size_t size = 0;
        char* const characters = yyjson_write(document_, YYJSON_WRITE_NOFLAG, &size);
        std::string text(characters, size);
        std::free(characters);
        return text;
    }

private:
    yyjson_doc* document_;
};

const Reader kReader("yyjson", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<YyDocument>(text);
});

} // namespace
} // namespace corvane::bench
