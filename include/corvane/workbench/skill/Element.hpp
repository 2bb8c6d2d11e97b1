#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/core/function_ref.hpp>
#include <corvane/utils/string/BasicStringView.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace corvane::utils::json::decoder {
class Object;
}
namespace corvane::utils::json::encoder {
class Object;
}

namespace corvane::workbench {
namespace config {
class Context;
}
namespace model {
class Attribute;
class ChildElementAccessor;
class Element;
} // namespace model
namespace process {
class Event;
class Task;
} // namespace process
} // namespace corvane::workbench

namespace corvane::workbench::skill {

class AbstractElementFactory;
struct EditableProperty;

namespace internal {
class AbstractElementSupervisor;
class ElementAccess;
} // namespace internal

/// What a skill keeps for an element of the configuration tree. The workbench keeps a generic
/// model::Element beside it and joins the two with an element supervisor; until the workbench has
/// attached that supervisor, no operation that goes through it may be called. An element belongs to
/// the workbench's tree and is used on the user-interface thread.
///
/// A subclass holds the element's settings, overrides `load`, `save` and `makeDefault` together,
/// and describes its properties in `configureProperties`. The order of the virtual operations is
/// fixed.
class CORVANE_WORKBENCH_EXPORT Element : public bindings::PropertyController {
public:
    class Class;

    /// An element without a supervisor.
    Element();
    /// A copy has its own place in the tree: it starts without a supervisor and unconfigured.
    Element(const Element& other);
    /// Leaves the target as it is, for the same reason.
    Element& operator=(const Element& other);
    ~Element() override = 0;

    /// The element's class. Needs a supervisor, like the three operations below.
    [[nodiscard]] const Class& elementClass() const;
    /// The element's name (UTF-8), valid until the element is renamed.
    [[nodiscard]] utils::string::BasicStringView<char> name() const;
    [[nodiscard]] utils::core::Uuid uuid() const;
    /// The element's key from the root of the configuration.
    [[nodiscard]] std::string primaryKey() const;

protected:
    /// The workbench's element for this one. Needs a supervisor, like all below.
    [[nodiscard]] const model::Element& element() const;
    /// The element's parent. Precondition: the element is not the root.
    [[nodiscard]] const model::Element& parentElement() const;
    [[nodiscard]] model::ChildElementAccessor childElements() const;
    /// Asks the workbench to enumerate the element's attributes, events and tasks anew; call it
    /// when what the three walks below deliver has changed.
    void publishElementMembers() const;

private:
    friend class internal::ElementAccess;

    /// Reads the element's settings from its JSON object; the members that the workbench reserves
    /// for itself do not appear. The base accepts only an empty object and throws through
    /// `config::throwUnknownParameterError` for the first member it meets.
    virtual void load(utils::json::decoder::Object& object, config::Context& context);
    /// Writes the element's settings as members of its JSON object. The base writes nothing.
    virtual void save(utils::json::encoder::Object& object) const;
    /// Gives a newly added element its initial settings. The base does nothing.
    virtual void makeDefault();

    /// Calls the callback with each attribute that this element adds to those every element has,
    /// stops when a callback returns true, and returns whether one did. The base has none.
    virtual bool forEachAttribute(
        const utils::core::function_ref<bool(const model::Attribute&)>& callback) const;
    /// The same for events.
    virtual bool
    forEachEvent(const utils::core::function_ref<bool(const process::Event&)>& callback) const;
    /// The same for tasks.
    virtual bool
    forEachTask(const utils::core::function_ref<bool(const process::Task&)>& callback) const;

public:
    /// Calls the callback with each property that a user may see or edit, in the order of a form.
    /// The description is valid for the length of the call; copies of it as long as the element.
    virtual void
    forEachEditableProperty(utils::core::function_ref<void(const EditableProperty&)> callback) = 0;

private:
    /// The identity by which an import recognises this element; the base has none.
    virtual std::optional<utils::core::Uuid> importId();
    /// Takes over settings from the element that an import replaces. The base does nothing.
    virtual void importMerge(const model::Element& other);
    /// Whether an import keeps the name that the element has here. The base says no.
    virtual bool preserveExistingNameOnImport() const;

    internal::AbstractElementSupervisor* supervisor_ = nullptr;
};

/// Describes a class of elements. A skill holds one object per element class, which is compared
/// by identity and stays at its address until the skill's library is unloaded.
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT Element::Class {
public:
    Class();
    Class(const Class& other);
    Class& operator=(const Class& other);
    virtual ~Class() = 0;

    /// The class's name in configuration files (UTF-8), unique among all skills.
    [[nodiscard]] virtual std::string_view id() const = 0;
    /// The class's identifier, unique among all skills and the same in every version.
    [[nodiscard]] virtual utils::core::Uuid uuid() const = 0;
    /// The class's name as shown to the user; also the type text of its elements.
    [[nodiscard]] virtual std::wstring displayName() const = 0;
    /// What elements of this class are for, in a sentence for the user.
    [[nodiscard]] virtual std::wstring description() const = 0;
    [[nodiscard]] virtual model::ElementCategory category() const = 0;
    /// Creates elements of this class; lives as long as the class.
    [[nodiscard]] virtual const AbstractElementFactory& factory() const = 0;
    /// Whether elements of this class accept children of the given class. The base says no, also
    /// for the class itself.
    [[nodiscard]] virtual bool allowChildElement(const Class& childClass) const;
    /// The name proposed for a new element (UTF-8); the workbench makes it unique among siblings.
    [[nodiscard]] virtual std::string defaultName() const = 0;
};

} // namespace corvane::workbench::skill
