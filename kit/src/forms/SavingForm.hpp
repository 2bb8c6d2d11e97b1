#pragma once

#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <optional>

namespace corvane::workbench::kit::internal {

/// Writes the settings to a file, as far as they are to be saved.
class SavingForm final : public Form {
public:
    explicit SavingForm(const Subject& subject) : Form(subject, Purpose::Save) {}

    /// Adds the settings of an element as members.
    void save(utils::json::encoder::Object& object);
    /// Writes a row.
    void save(utils::json::encoder::Value& value);

private:
    void take(Description& description) override;
    void takeWrittenAsValue() override { isWrittenAsValue_ = true; }

    bool isWrittenAsValue_ = false;
    /// Where a row that is written as a value goes to.
    utils::json::encoder::Value* value_ = nullptr;
    std::optional<utils::json::encoder::Object> object_;
};

} // namespace corvane::workbench::kit::internal
