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

/// Gives the nearest doubles, as the others do.
const Reader
    kPreciseReader("boost precise", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
        boost::json::parse_options options;
        options.numbers = boost::json::number_precision::precise;
        return std::make_unique<BoostDocument>(boost::json::parse(text, {}, options));
    });

} // namespace
} // namespace corvane::bench
