#include "Reader.hpp"

#include <boost/json.hpp>

#include <utility>

namespace corvane::bench {
namespace {

class BoostDocument final : public ReadDocument {
public:
    explicit BoostDocument(boost::json::value value) : m_value(std::move(value)) {}

    [[nodiscard]] std::string write() const override { return boost::json::serialize(m_value); }

private:
    boost::json::value m_value;
};

const Reader kReader("boost", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<BoostDocument>(boost::json::parse(text));
});

} // namespace
} // namespace corvane::bench
