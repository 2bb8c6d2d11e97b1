#pragma once

#include <corvane/workbench/kit/State.hpp>
#include <corvane/workbench/kit/Text.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <span>
#include <string>
#include <string_view>

namespace corvane::utils::json::decoder {
class Value;
}
namespace corvane::utils::json::encoder {
class Value;
}
namespace corvane::workbench::config {
class Context;
}

namespace corvane::workbench::kit::internal {

class SettingKind;

/// The field that holds a setting's value, together with what its kind has to know about it.
struct Field {
    void* address = nullptr;
    const SettingKind* kind = nullptr;
    /// The texts of a choice.
    std::span<const Text> choices{};
    /// A duration may stand in a file as a count of microseconds.
    bool acceptsMicroseconds = false;
    /// JSON settings must not use the member names that elements reserve.
    bool refusesReservedNames = false;
};

/// What can be done with the values of one kind of setting. There is one object for each kind; it
/// has no state, and the field that it is given holds a value of its type.
class SettingKind {
public:
    SettingKind() = default;
    SettingKind(const SettingKind&) = delete;
    SettingKind& operator=(const SettingKind&) = delete;

    [[nodiscard]] virtual skill::EditableProperty::Editor editor() const noexcept = 0;
    /// Whether the value is that of an object that has just been made.
    [[nodiscard]] virtual bool isEmpty(const Field& field) const = 0;
    /// What is wrong with any such value, whatever the setting is for.
    [[nodiscard]] virtual State check(const Field& field) const;
    /// Whether check() can fail.
    [[nodiscard]] virtual bool checks() const noexcept { return false; }

    /// Reads the value from a file; throws a located error for what is no such value.
    virtual void read(const Field& field, utils::json::decoder::Value& value,
                      config::Context& context) const = 0;
    virtual void write(const Field& field, utils::json::encoder::Value& value) const = 0;

    /// The value as the user reads it.
    [[nodiscard]] virtual std::wstring text(const Field& field) const = 0;
    /// Whether the user sets the value as a text.
    [[nodiscard]] virtual bool isTyped() const noexcept { return true; }
    /// Stores what the text stands for, or says why it stands for nothing and stores nothing.
    [[nodiscard]] virtual State setText(const Field& field, std::wstring_view typed) const;

protected:
    ~SettingKind() = default;
};

} // namespace corvane::workbench::kit::internal
