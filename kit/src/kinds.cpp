#include <corvane/workbench/kit/internal/kinds.hpp>

#include "completed.hpp"
#include "translationContext.hpp"
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>
#include <corvane/utils/json/decoder/String.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/functional.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/json/Object.hpp>
#include <corvane/workbench/json/Value.hpp>
#include <corvane/workbench/kit/fail.hpp>
#include <corvane/workbench/kit/translate.hpp>

#include <cmath>
#include <optional>
#include <utility>

namespace corvane::workbench::kit::internal {

using bindings::functional::AdjustTimeStampText;
using bindings::functional::AdjustUuidText;
using chrono::Duration;
using utils::core::Uuid;
using Editor = skill::EditableProperty::Editor;
namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

State SettingKind::check(const Field& /*field*/) const {
    return {};
}

State SettingKind::setText(const Field& /*field*/, std::wstring_view /*typed*/) const {
    return error("The value cannot be typed.");
}

namespace {

/// A kind whose fields have the type T and are empty when they equal T().
template <class T, Editor Control>
class ValueKind : public SettingKind {
public:
    [[nodiscard]] Editor editor() const noexcept final { return Control; }
    [[nodiscard]] bool isEmpty(const Field& field) const final { return value(field) == T(); }

protected:
    ~ValueKind() = default;
    static T& value(const Field& field) noexcept { return *static_cast<T*>(field.address); }
};

class TextKind final : public ValueKind<std::string, Editor::Text> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field) = std::string(value.asString().view());
    }
    void write(const Field& field, encoder::Value& value) const override {
        value.writeString(this->value(field));
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return utils::string::toWide(value(field));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        value(field) = utils::string::toUtf8(typed);
        return {};
    }
};

class NumberKind final : public ValueKind<double, Editor::Number> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field) = value.asDouble();
    }
    void write(const Field& field, encoder::Value& value) const override {
        value.writeNumber(utils::numeric::format(this->value(field)));
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return valueText(value(field));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        const auto number = utils::numeric::parse<double>(utils::string::toUtf8(typed));
        if (!number || !std::isfinite(*number)) {
            return error("“{}” is not a number.", typed);
        }
        value(field) = *number;
        return {};
    }
};

class FlagKind final : public ValueKind<bool, Editor::Flag> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field) = value.asBool();
    }
    void write(const Field& field, encoder::Value& value) const override {
        value.writeBool(this->value(field));
    }
    // What a user interface shows as a mark is no text, and so is not translated.
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return value(field) ? L"true" : L"false";
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        if (typed != L"true" && typed != L"false") {
            return error("“{}” is neither “true” nor “false”.", typed);
        }
        value(field) = typed == L"true";
        return {};
    }
};

class DurationKind final : public ValueKind<Duration, Editor::Duration> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field) = field.acceptsMicroseconds
                                 ? Duration::load(value, decoder::kAllowLegacyMicroseconds)
                                 : Duration::load(value);
    }
    void write(const Field& field, encoder::Value& value) const override {
        this->value(field).save(value);
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return valueText(value(field));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        const std::optional<Duration> duration = Duration::parse(utils::string::toUtf8(typed));
        if (!duration) {
            return error("“{}” is not a duration; write for example “250ms” or “1.5h”.", typed);
        }
        value(field) = *duration;
        return {};
    }
};

class TimeStampKind final : public ValueKind<std::string, Editor::TimeStamp> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field) = std::string(value.asString().view());
    }
    void write(const Field& field, encoder::Value& value) const override {
        value.writeString(this->value(field));
    }
    [[nodiscard]] bool checks() const noexcept override { return true; }
    [[nodiscard]] State check(const Field& field) const override {
        // A text that needs no completion is complete.
        const std::wstring kept = utils::string::toWide(value(field));
        if (kept.empty() || completed(AdjustTimeStampText(), kept) == kept) {
            return {};
        }
        return error("The time stamp must read like “2024-05-06 07:08:09Z”.");
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return utils::string::toWide(value(field));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        value(field) = typed.empty()
                           ? std::string()
                           : utils::string::toUtf8(completed(AdjustTimeStampText(), typed));
        return {};
    }
};

class UuidKind final : public ValueKind<Uuid, Editor::Uuid> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        const std::string text(value.asString().view());
        const std::optional<Uuid> uuid = Uuid::parse(text);
        if (!uuid) {
            fail(value, "\"" + text + "\" is not a UUID");
        }
        this->value(field) = *uuid;
    }
    void write(const Field& field, encoder::Value& value) const override {
        value.writeString(this->value(field).toString());
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return valueText(value(field));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        const auto uuid = Uuid::parse(utils::string::toUtf8(completed(AdjustUuidText(), typed)));
        if (!uuid) {
            return error("“{}” is not a UUID.", typed);
        }
        value(field) = *uuid;
        return {};
    }
};

class JsonObjectKind final : public ValueKind<json::Object, Editor::Text> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        if (field.refusesReservedNames) {
            this->value(field).decode(value, json::Object::kCorvaneElementFilter);
        } else {
            this->value(field).decode(value);
        }
    }
    void write(const Field& field, encoder::Value& value) const override {
        this->value(field).encode(value);
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        const json::Object& object = value(field);
        return object.empty()
                   ? std::wstring()
                   : utils::string::toWide(object.toString(encoder::Document::Format::Compact));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        if (typed.empty()) {
            value(field).clear();
            return {};
        }
        const std::string text = utils::string::toUtf8(typed);
        auto object = field.refusesReservedNames
                          ? json::Object::fromString(text, json::Object::kCorvaneElementFilter)
                          : json::Object::fromString(text);
        if (!object) {
            return tl::unexpected(std::move(object.error()));
        }
        value(field) = std::move(*object);
        return {};
    }
};

class JsonValueKind final : public ValueKind<json::Value, Editor::Text> {
    void read(const Field& field, decoder::Value& value, config::Context&) const override {
        this->value(field).decode(value);
    }
    void write(const Field& field, encoder::Value& value) const override {
        this->value(field).encode(value);
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        return isEmpty(field) ? std::wstring()
                              : utils::string::toWide(
                                    value(field).toString(encoder::Document::Format::Compact));
    }
    [[nodiscard]] State setText(const Field& field, std::wstring_view typed) const override {
        if (typed.empty()) {
            value(field) = json::Value();
            return {};
        }
        auto parsed = json::Value::fromString(utils::string::toUtf8(typed));
        if (!parsed) {
            return tl::unexpected(std::move(parsed.error()));
        }
        value(field) = std::move(*parsed);
        return {};
    }
};

} // namespace

const SettingKind& textKind() noexcept {
    static constinit const TextKind kKind;
    return kKind;
}

const SettingKind& numberKind() noexcept {
    static constinit const NumberKind kKind;
    return kKind;
}

const SettingKind& flagKind() noexcept {
    static constinit const FlagKind kKind;
    return kKind;
}

const SettingKind& durationKind() noexcept {
    static constinit const DurationKind kKind;
    return kKind;
}

const SettingKind& timeStampKind() noexcept {
    static constinit const TimeStampKind kKind;
    return kKind;
}

const SettingKind& uuidKind() noexcept {
    static constinit const UuidKind kKind;
    return kKind;
}

const SettingKind& jsonObjectKind() noexcept {
    static constinit const JsonObjectKind kKind;
    return kKind;
}

const SettingKind& jsonValueKind() noexcept {
    static constinit const JsonValueKind kKind;
    return kKind;
}

Editor BasicIntegerKind::editor() const noexcept {
    return Editor::Number;
}

bool BasicIntegerKind::isEmpty(const Field& field) const {
    return bits(field) == 0;
}

void BasicIntegerKind::read(const Field& field, decoder::Value& value, config::Context&) const {
    const Type type = this->type();
    const auto check = [&](auto number, auto lowest, auto highest) {
        if (number < lowest || number > highest) {
            fail(value, "the number " + std::string(utils::numeric::format(number).view()) +
                            " is not between " +
                            std::string(utils::numeric::format(lowest).view()) + " and " +
                            std::string(utils::numeric::format(highest).view()));
        }
        store(field, static_cast<std::uint64_t>(number));
    };
    if (type.isSigned) {
        check(value.asInt64(), type.lowest, static_cast<std::int64_t>(type.highest));
    } else {
        check(value.asUInt64(), std::uint64_t{0}, type.highest);
    }
}

void BasicIntegerKind::write(const Field& field, encoder::Value& value) const {
    if (type().isSigned) {
        value.writeNumber(utils::numeric::format(static_cast<std::int64_t>(bits(field))));
    } else {
        value.writeNumber(utils::numeric::format(bits(field)));
    }
}

std::wstring BasicIntegerKind::text(const Field& field) const {
    return type().isSigned ? valueText(static_cast<std::int64_t>(bits(field)))
                           : valueText(bits(field));
}

State BasicIntegerKind::setText(const Field& field, std::wstring_view typed) const {
    const Type type = this->type();
    const std::string text = utils::string::toUtf8(typed);
    const auto take = [&](const auto& number, auto lowest, auto highest) -> State {
        if (!number) {
            return error("“{}” is not a whole number.", typed);
        }
        if (*number < lowest || *number > highest) {
            return error("The number must lie between {} and {}.", lowest, highest);
        }
        store(field, static_cast<std::uint64_t>(*number));
        return {};
    };
    return type.isSigned
               ? take(utils::numeric::parse<std::int64_t>(text), type.lowest,
                      static_cast<std::int64_t>(type.highest))
               : take(utils::numeric::parse<std::uint64_t>(text), std::uint64_t{0}, type.highest);
}

Editor BasicChoiceKind::editor() const noexcept {
    return Editor::Choice;
}

bool BasicChoiceKind::isEmpty(const Field& field) const {
    return index(field) == 0;
}

Text BasicChoiceKind::choiceText(const Field& field, std::size_t index) {
    if (index >= field.choices.size()) {
        throw std::out_of_range("the value " + std::to_string(index) +
                                " of an enumeration is not one of its choices");
    }
    return field.choices[index];
}

void BasicChoiceKind::read(const Field& field, decoder::Value& value, config::Context&) const {
    const std::string text(value.asString().view());
    for (std::size_t index = 0; index < field.choices.size(); ++index) {
        if (text == std::string_view(field.choices[index])) {
            store(field, index);
            return;
        }
    }
    std::string message = "\"" + text + "\" is not one of";
    std::string_view separator = " \"";
    for (const Text& choice : field.choices) {
        message.append(separator).append(choice).append("\"");
        separator = ", \"";
    }
    fail(value, message);
}

void BasicChoiceKind::write(const Field& field, encoder::Value& value) const {
    value.writeString(choiceText(field, index(field)));
}

std::wstring BasicChoiceKind::text(const Field& field) const {
    return translated(choiceText(field, index(field)));
}

State BasicChoiceKind::setText(const Field& field, std::wstring_view typed) const {
    for (std::size_t index = 0; index < field.choices.size(); ++index) {
        if (typed == translated(field.choices[index])) {
            store(field, index);
            return {};
        }
    }
    return error("“{}” is not one of the choices.", typed);
}

} // namespace corvane::workbench::kit::internal
