#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/kit/internal/kinds.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace corvane::workbench::kit::internal {

namespace {

State resolve(const model::ElementReference& reference) {
    return resolves(reference.element());
}

State resolve(const model::AttributeReference& reference) {
    return resolves(reference.attribute());
}

State resolve(const process::EventReference& reference) {
    return resolves(reference.event());
}

State resolve(const process::TaskReference& reference) {
    return resolves(reference.task());
}

/// References are set by the workbench, which alone can make them from keys.
template <class Reference>
class ReferenceKind final : public SettingKind {
    static Reference& reference(const Field& field) noexcept {
        return *static_cast<Reference*>(field.address);
    }

    [[nodiscard]] skill::EditableProperty::Editor editor() const noexcept override {
        return skill::EditableProperty::Editor::Reference;
    }
    [[nodiscard]] bool isEmpty(const Field& field) const override { return !reference(field); }
    [[nodiscard]] bool checks() const noexcept override { return true; }
    [[nodiscard]] State check(const Field& field) const override {
        return resolve(reference(field));
    }
    void read(const Field& field, utils::json::decoder::Value& value,
              config::Context& context) const override {
        context.resolve(config::Context::ReferenceKey(value), reference(field));
    }
    void write(const Field& field, utils::json::encoder::Value& value) const override {
        reference(field).save(value);
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        const model::internal::ElementReferenceData& data = reference(field).data();
        return utils::string::toWide((data.isImportReference() ? ".import:" : "") +
                                     data.primaryKey());
    }
    [[nodiscard]] bool isTyped() const noexcept override { return false; }
};

} // namespace

const SettingKind& elementReferenceKind() noexcept {
    static constinit const ReferenceKind<model::ElementReference> kKind;
    return kKind;
}

const SettingKind& attributeReferenceKind() noexcept {
    static constinit const ReferenceKind<model::AttributeReference> kKind;
    return kKind;
}

const SettingKind& eventReferenceKind() noexcept {
    static constinit const ReferenceKind<process::EventReference> kKind;
    return kKind;
}

const SettingKind& taskReferenceKind() noexcept {
    static constinit const ReferenceKind<process::TaskReference> kKind;
    return kKind;
}

} // namespace corvane::workbench::kit::internal
