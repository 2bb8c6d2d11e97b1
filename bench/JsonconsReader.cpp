#include "Reader.hpp"

#include <jsoncons/json.hpp>

#include <utility>

namespace corvane::bench {
namespace {

class JsonconsDocument final : public ReadDocument {
public:
    explicit JsonconsDocument(jsoncons::ojson value) : m_value(std::move(value)) {}

    [[nodiscard]] std::string write() const override {
        std::string text;
        m_value.dump(text);
        return text;
    }

private:
    jsoncons::ojson m_value;
};

const Reader kReader("jsoncons", [](std::string_view text) -> std::unique_ptr<ReadDocument> {
    return std::make_unique<JsonconsDocument>(jsoncons::ojson::parse(text));
});

} // namespace
} // namespace corvane::bench
