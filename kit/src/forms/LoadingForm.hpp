#pragma once

#include <corvane/workbench/kit/Form.hpp>

#include <string_view>
#include <vector>

namespace corvane::utils::json::decoder {
class Object;
class Value;
} // namespace corvane::utils::json::decoder
namespace corvane::workbench::config {
class Context;
}

namespace corvane::workbench::kit::internal {

/// Gives all settings their initial values and then those that stand in a file.
class LoadingForm final : public Form {
public:
    explicit LoadingForm(const Subject& subject) : Form(subject, Purpose::Load) {}

    /// Reads the members of an element's object; throws a located error for one that nothing
    /// describes.
    void load(utils::json::decoder::Object& object, config::Context& context);
    /// Reads a row.
    void load(utils::json::decoder::Value& value, config::Context& context);

private:
    struct Entry {
        std::string_view name;
        Field field;
    };

    void take(Description& description) override;
    void takeWrittenAsValue() override { isWrittenAsValue_ = true; }
    void read(utils::json::decoder::Object& object, config::Context& context) const;
    [[nodiscard]] const Entry* find(std::string_view name, std::size_t expected) const;

    std::vector<Entry> entries_;
    bool isWrittenAsValue_ = false;
};

} // namespace corvane::workbench::kit::internal
