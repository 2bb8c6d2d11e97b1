#include "Reader.hpp"

#include <nlohmann/json.hpp>

#include <utility>

namespace corvane::bench {
namespace {

class NlohmannDocument final : public ReadDocument {
public:
    explicit NlohmannDocument(nlohmann::ordered_json value) : value_(std::move(value)) {}

    [[nodiscard]] std::string write() const override { return value_.dump(); }

private:
    nlohmann::ordered_json value_;
};

const Reader kReader("nlohmann", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<NlohmannDocument>(nlohmann::ordered_json::parse(text));
});

} // namespace
} // namespace corvane::bench
