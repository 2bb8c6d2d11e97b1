#pragma once

#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/kit/Form.hpp>
#include <corvane/workbench/kit/internal/Subject.hpp>
#include <corvane/workbench/kit/internal/fieldId.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <vector>

namespace corvane::workbench::kit {

template <class T>
class ElementClass;

/// An element that describes itself. A subclass has fields with the values and overrides
/// describe(); everything else that a workbench asks of an element is made from the description. It
/// needs a default constructor and a copy constructor; those that the compiler makes are right.
///
/// Anything else can be overridden as well, in terms of what is here, and a skill may have elements
/// of this kind beside others.
class Element : public skill::Element {
public:
    Element() = default;
    /// A copy has its own place in the tree: it starts without a supervisor and unconfigured.
    Element(const Element& other) : skill::Element(other) {}
    Element& operator=(const Element&) = delete;
    ~Element() override = 0;

    void forEachEditableProperty(
        utils::core::function_ref<void(const skill::EditableProperty&)> callback) override;

    /// The property of the setting that a field holds.
    template <class T>
    [[nodiscard]] bindings::PropertyHandle property(const T& field) {
        return propertyHandle(internal::fieldId(*this, &field));
    }

protected:
    /// Names the settings and members of the element. See Form for what it may do.
    virtual void describe(Form& form) = 0;

    /// Tells everybody that the skill has changed the value in a field, as if the user had set it.
    template <class T>
    void changed(const T& field) {
        publishChange(internal::fieldId(*this, &field));
    }

    void configureProperties(PropertyConfigurationContext& context) override;
    void load(utils::json::decoder::Object& object, config::Context& context) override;
    void save(utils::json::encoder::Object& object) const override;
    void makeDefault() override;
    bool forEachAttribute(
        const utils::core::function_ref<bool(const model::Attribute&)>& callback) const override;
    bool forEachEvent(
        const utils::core::function_ref<bool(const process::Event&)>& callback) const override;
    bool forEachTask(
        const utils::core::function_ref<bool(const process::Task&)>& callback) const override;

private:
    template <class T>
    friend class ElementClass;

    static const internal::Subject::Type kSubjectType;

    [[nodiscard]] internal::Subject subject() const noexcept;
    void publishChange(const bindings::PropertyId& property);

    /// Hear of changes of references and lists that something follows from; mostly none.
    std::vector<Subscription> triggers_;
};

} // namespace corvane::workbench::kit
