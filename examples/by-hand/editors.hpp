#pragma once

// Descriptions of properties for a generic user interface: how a value reads, and how a text that
// the user enters becomes a value. The values must live as long as the descriptions.

#include "names.hpp"
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace by_hand {

using State = workbench::bindings::PropertyController::PropertyState;

/// A text as the user is to see it.
std::wstring text(std::string_view english);
/// Success when the condition holds, otherwise the message.
State check(bool condition, std::string_view message);

workbench::skill::EditableProperty textEditor(std::string_view name, std::string_view displayName,
                                              const workbench::bindings::PropertyHandle& property,
                                              std::string& value);
workbench::skill::EditableProperty numberEditor(std::string_view name, std::string_view displayName,
                                                const workbench::bindings::PropertyHandle& property,
                                                std::int64_t& value);
/// Shows a reference as its key. It has no setter: only the workbench makes references from keys.
workbench::skill::EditableProperty
referenceEditor(std::string_view name, std::string_view displayName,
                const workbench::bindings::PropertyHandle& property,
                const std::function<std::string()>& key);

} // namespace by_hand
