#include "LoadingForm.hpp"

#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

namespace corvane::workbench::kit::internal {

void LoadingForm::load(utils::json::decoder::Object& object, config::Context& context) {
    fillIn();
    read(object, context);
}

void LoadingForm::load(utils::json::decoder::Value& value, config::Context& context) {
    fillIn();
    if (isWrittenAsValue_ && entries_.size() == 1) {
        entries_.front().field.kind->read(entries_.front().field, value, context);
    } else {
        utils::json::decoder::Object object = value.asObject();
        read(object, context);
    }
}

void LoadingForm::take(Description& description) {
    if (description.subject == Description::Subject::Setting) {
        entries_.push_back({.name = description.name, .field = description.field});
    }
}

void LoadingForm::read(utils::json::decoder::Object& object, config::Context& context) const {
    std::size_t expected = 0;
    for (const auto& [name, value] : object) {
        const Entry* const entry = find(name, expected);
        if (entry == nullptr) {
            config::throwUnknownParameterError(name);
        }
        entry->field.kind->read(entry->field, value, context);
        expected = static_cast<std::size_t>(entry - entries_.data()) + 1;
    }
}

// Members mostly come in the order of the description, since they were saved in it.
const LoadingForm::Entry* LoadingForm::find(std::string_view name, std::size_t expected) const {
    for (std::size_t index = expected; index < entries_.size(); ++index) {
        if (entries_[index].name == name) {
            return &entries_[index];
        }
    }
    for (std::size_t index = 0; index < expected; ++index) {
        if (entries_[index].name == name) {
            return &entries_[index];
        }
    }
    return nullptr;
}

} // namespace corvane::workbench::kit::internal
