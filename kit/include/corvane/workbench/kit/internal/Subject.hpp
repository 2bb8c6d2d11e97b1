#pragma once

namespace corvane::workbench::bindings {
class PropertyController;
}

namespace corvane::workbench::kit {

class Form;

namespace internal {

/// What an element and a row have in common for the forms: a controller of properties that can
/// describe itself. A small value, good as long as the controller.
struct Subject {
    /// One object for each of the two.
    struct Type {
        void (*describe)(bindings::PropertyController& controller, Form& form);
        /// Asks the workbench to look at attributes, events and tasks again; null for rows.
        void (*publishMembers)(bindings::PropertyController& controller);
    };

    bindings::PropertyController* controller = nullptr;
    const Type* type = nullptr;

    void describe(Form& form) const { type->describe(*controller, form); }
    [[nodiscard]] bool isRow() const noexcept { return type->publishMembers == nullptr; }
};

} // namespace internal

} // namespace corvane::workbench::kit
