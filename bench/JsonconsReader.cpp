#include "Reader.hpp"

#include <jsoncons/json.hpp>

#include <utility>

namespace corvane::bench {
namespace {

class JsonconsDocument final : public ReadDocument {
public:
    explicit JsonconsDocument(jsoncons::ojson value) : value_(std::move(value)) {}

    [[nodiscard]] std::string write() const override {
        std::string text;
        value_.dump(text);
        return text;
    }

private:
    jsoncons::ojson value_;
};

const Reader kReader("jsoncons", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<JsonconsDocument>(jsoncons::ojson::parse(text));
});

} // namespace
} // namespace corvane::bench
