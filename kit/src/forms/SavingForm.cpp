#include "SavingForm.hpp"

namespace corvane::workbench::kit::internal {

void SavingForm::save(utils::json::encoder::Object& object) {
    object_ = object;
    fillIn();
}

void SavingForm::save(utils::json::encoder::Value& value) {
    value_ = &value;
    fillIn();
    if (!isWrittenAsValue_ && !object_) {
        value.writeObject();
    }
}

void SavingForm::take(Description& description) {
    const Field& field = description.field;
    if (description.subject != Description::Subject::Setting) {
        return;
    }
    if (isWrittenAsValue_) {
        field.kind->write(field, *value_);
        return;
    }
    if (description.saved == Saved::WhenVisible && !description.isVisible) {
        return;
    }
    if (description.saved == Saved::WhenNotInitial &&
        (description.hasInitialValue ? description.isInitial : field.kind->isEmpty(field))) {
        return;
    }
    if (!object_) {
        object_ = value_->writeObject();
    }
    utils::json::encoder::Value value = object_->addMember(description.name);
    field.kind->write(field, value);
}

} // namespace corvane::workbench::kit::internal
