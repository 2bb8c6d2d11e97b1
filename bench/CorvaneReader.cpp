#include "Reader.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <utility>

namespace corvane::bench {
namespace {

using workbench::json::Value;

class CorvaneDocument final : public ReadDocument {
public:
    explicit CorvaneDocument(Value value) : value_(std::move(value)) {}

    [[nodiscard]] std::string write() const override {
        return value_.toString(utils::json::encoder::Document::Format::Compact);
    }

private:
    Value value_;
};

const Reader kReader("corvane", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<CorvaneDocument>(Value::fromString(text).value());
});

} // namespace
} // namespace corvane::bench
