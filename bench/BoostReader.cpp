#include "Reader.hpp"

#include <boost/json.hpp>

#include <utility>

namespace corvane::bench {
namespace {

class BoostDocument final : public ReadDocument {
public:
    explicit BoostDocument(boost::json::value value) : value_(std::move(value)) {}

    [[nodiscard]] std::string write() const override { return boost::json::serialize(value_); }

private:
    boost::json::value value_;
};

const Reader kReader("boost", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<BoostDocument>(boost::json::parse(text));
});

} // namespace
} // namespace corvane::bench
