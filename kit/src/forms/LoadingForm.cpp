#include "LoadingForm.hpp"

#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <algorithm>
#include <string_view>
#include <vector>

namespace corvane::workbench::kit::internal {

namespace {

namespace decoder = utils::json::decoder;

/// Where settings are found that come in another order than they are described in.
class SettingsByName final : public Form {
public:
    explicit SettingsByName(const Subject& subject) : Form(subject, Purpose::Recheck) { fillIn(); }

    /// Null when there is none of that name.
    [[nodiscard]] const Field* find(std::string_view name) const {
        const auto found = std::ranges::find(settings_, name, &Setting::name);
        return found == settings_.end() ? nullptr : &found->field;
    }

private:
    struct Setting {
        std::string_view name;
        Field field;
    };

    void take(Description& description) override {
        if (description.subject == Description::Subject::Setting) {
            settings_.push_back({.name = description.name, .field = description.field});
        }
    }

    std::vector<Setting> settings_;
};

} // namespace

void LoadingForm::load(decoder::Object& object) {
    object_ = &object;
    fillIn();
    readOthers();
}

void LoadingForm::load(decoder::Value& row) {
    row_ = &row;
    if (row.isObject()) {
        decoder::Object object = row.asObject();
        object_ = &object;
        fillIn();
        if (!isWrittenAsValue_) {
            readOthers();
        }
        return;
    }
    fillIn();
    if (!isWrittenAsValue_) {
        static_cast<void>(row.asObject()); // says that it is none
    }
}

void LoadingForm::take(Description& description) {
    if (description.subject != Description::Subject::Setting) {
        return;
    }
    const Field& field = description.field;
    if (isWrittenAsValue_) {
        field.kind->read(field, *row_, context_);
    } else if (object_ != nullptr) {
        auto member = object_->begin();
        if (member != object_->end() && (*member).name == std::string_view(description.name)) {
            field.kind->read(field, (*member).value, context_);
            ++member;
        }
    }
}

void LoadingForm::readOthers() {
    if (object_->begin() == object_->end()) {
        return;
    }
    const SettingsByName settings(subject());
    for (const auto& [name, value] : *object_) {
        const Field* const field = settings.find(name.text());
        if (field == nullptr) {
            config::throwUnknownParameterError(name);
        }
        field->kind->read(*field, value, context_);
    }
}

} // namespace corvane::workbench::kit::internal
