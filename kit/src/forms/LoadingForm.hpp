#pragma once

#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/kit/Form.hpp>

namespace corvane::utils::json::decoder {
class Value;
}
namespace corvane::workbench::config {
class Context;
}

namespace corvane::workbench::kit::internal {

/// Gives all settings their initial values, or those that stand in a file. Members mostly come in
/// the order of the description, since they were saved in it: these are read while the settings are
/// described, the others afterwards.
class LoadingForm final : public Form {
public:
    LoadingForm(const Subject& subject, config::Context& context)
        : Form(subject, Purpose::Load), context_(context) {}

    /// Reads the members of an element's object; throws a located error for one that nothing
    /// describes.
    void load(utils::json::decoder::Object& object);
    /// Reads a row.
    void load(utils::json::decoder::Value& value);

private:
    void take(Description& description) override;
    void takeWrittenAsValue() override { isWrittenAsValue_ = true; }
    void readOthers();

    config::Context& context_;
    /// The members that have not been read yet.
    utils::json::decoder::Object* object_ = nullptr;
    /// The row, until it is known whether it is an object.
    utils::json::decoder::Value* row_ = nullptr;
    bool isWrittenAsValue_ = false;
};

} // namespace corvane::workbench::kit::internal
