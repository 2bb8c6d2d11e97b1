#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/core/function_ref.hpp>
#include <corvane/utils/string/BasicStringView.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/ChildElementAccessor.hpp>
#include <corvane/workbench/model/ElementCategory.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventSearchOptions.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <tl/expected.hpp>

#include <concepts>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace corvane::workbench::process {
class EventReference;
class TaskReference;
} // namespace corvane::workbench::process

namespace corvane::workbench::model {

class AttributeReference;
class ElementReference;

namespace internal {
class ElementAccess;
class ElementReferenceData;
} // namespace internal

/// One element of the configuration tree, as skills and this library see it.
///
/// The workbench owns the tree and implements this interface, one object for each element; everyone
/// else only reads through it, on the thread that owns the model. Members (attributes, events and
/// tasks) are looked up by name, in UTF-8, byte for byte and with regard to case.
///
/// An element of the category CustomElement is one of unknown structure: it passes every category
/// check, counts as a data point, and answers for every member name.
class CORVANE_WORKBENCH_EXPORT Element {
public:
    Element() = default;
    Element(const Element& other) = default;
    Element& operator=(const Element& other) = default;

    /// @name Identity
    /// @{

    /// The name, in UTF-8, under which its parent knows it; valid until it is renamed.
    [[nodiscard]] utils::string::BasicStringView<char> name() const;

    /// The key by which references name this element: the names on the way down to it.
    [[nodiscard]] std::string primaryKey() const;

    [[nodiscard]] utils::core::Uuid uuid() const;

    /// The type of the element as it is shown to the user.
    [[nodiscard]] std::wstring type() const;

    /// @}
    /// @name Category
    /// @{

    [[nodiscard]] ElementCategory category() const;

    /// Whether the element's category is one of `categories`; always true for a custom element,
    /// also when `categories` is empty. Throws std::out_of_range when the category of the element
    /// is no enumerator.
    [[nodiscard]] bool checkCategory(utils::core::Flags<ElementCategory> categories) const;

    /// Whether the element is a data point or a custom element. Throws as checkCategory does.
    [[nodiscard]] bool isDataPoint() const;

    /// Whether the element is a data point made by a skill, or a custom element. Never throws for
    /// a category that is no enumerator.
    [[nodiscard]] bool isSkillDataPoint() const;

    /// Whether the element was made by a skill and its class is this very object.
    [[nodiscard]] bool isA(const skill::Element::Class& elementClass) const;

    /// @}
    /// @name Place in the tree
    /// @{

    [[nodiscard]] bool isInvisibleRoot() const;

    /// The nearest ancestor of the class, or null.
    [[nodiscard]] const Element* findAncestor(const skill::Element::Class& elementClass) const;

    [[nodiscard]] bool isDescendentOf(const Element& other) const;

    /// Null for the root.
    [[nodiscard]] const Element* parentElement() const;

    /// The children that there are now.
    [[nodiscard]] ChildElementAccessor childElements() const;

    /// The child of that name, or null.
    [[nodiscard]] const Element* childElement(std::string_view name) const;

    /// @}
    /// @name All members, in the order of the element
    /// @{

    [[nodiscard]] std::vector<Attribute> attributes() const;

    /// The events and then, with `options.includeAttributes`, the change event of each attribute;
    /// an event and an attribute of the same name both appear.
    [[nodiscard]] std::vector<process::Event>
    events(process::EventSearchOptions options = {}) const;

    [[nodiscard]] std::vector<process::Task> tasks() const;

    /// @}
    /// @name Walks
    /// They call `visit` for one member after the other, in the same order as above, until it
    /// returns true; a `visit` that returns nothing sees all. They return whether `visit` stopped
    /// the walk. The member is valid during the call only.
    /// @{

    template <class Visit>
        requires std::invocable<Visit&, const Attribute&>
    bool forEachAttribute(Visit&& visit) const {
        bool stopped = false;
        forEachAttributeInternal(
            [&](const Attribute& attribute) { return stopped = stops(visit, attribute); });
        return stopped;
    }

    template <class Visit>
        requires std::invocable<Visit&, const process::Event&>
    bool forEachEvent(Visit&& visit, process::EventSearchOptions options = {}) const {
        bool stopped = false;
        forEachEventInternal(
            [&](const process::Event& event) { return stopped = stops(visit, event); }, options);
        return stopped;
    }

    template <class Visit>
        requires std::invocable<Visit&, const process::Task&>
    bool forEachTask(Visit&& visit) const {
        bool stopped = false;
        forEachTaskInternal(
            [&](const process::Task& task) { return stopped = stops(visit, task); });
        return stopped;
    }

    /// @}
    /// @name Lookups
    /// The first member of that name, or a translated message that says what is missing. A custom
    /// element makes up what it does not have.
    /// @{

    [[nodiscard]] tl::expected<Attribute, std::wstring> attribute(std::string_view name) const;

    /// With `options.includeAttributes`, the change event of an attribute is found when no event
    /// has the name.
    [[nodiscard]] tl::expected<process::Event, std::wstring>
    event(std::string_view name, process::EventSearchOptions options = {}) const;

    [[nodiscard]] tl::expected<process::Task, std::wstring> task(std::string_view name) const;

    /// @}
    /// @name References to this element and to its members
    /// That there is such a member is not checked: a reference to a missing one fails when it is
    /// resolved.
    /// @{

    [[nodiscard]] ElementReference makeReference() const;
    [[nodiscard]] AttributeReference makeAttributeReference(std::string_view name) const;
    [[nodiscard]] AttributeReference makeAttributeReference(const Attribute& attribute) const;

    /// The reference keeps the options.
    [[nodiscard]] process::EventReference
    makeEventReference(std::string_view name, process::EventSearchOptions options = {}) const;
    [[nodiscard]] process::EventReference
    makeEventReference(const process::Event& event, process::EventSearchOptions options = {}) const;

    [[nodiscard]] process::TaskReference makeTaskReference(std::string_view name) const;
    [[nodiscard]] process::TaskReference makeTaskReference(const process::Task& task) const;

    /// @}

private:
    // Opens the private operations to the workbench and to the library itself.
    friend class internal::ElementAccess;

    /// The skill element; throws std::bad_cast when the element was not made by a skill.
    [[nodiscard]] skill::Element& getSkillElement() &;
    [[nodiscard]] skill::Element&& getSkillElement() &&;
    [[nodiscard]] const skill::Element& getSkillElement() const&;
    [[nodiscard]] const skill::Element&& getSkillElement() const&&;

    /// The skill element, or null.
    [[nodiscard]] skill::Element* getSkillElement(std::nothrow_t);
    [[nodiscard]] const skill::Element* getSkillElement(std::nothrow_t) const;

    bool forEachAttributeInternal(
        const utils::core::function_ref<bool(const Attribute&)>& callback) const;

    /// The result tells of the attributes only: it is false when an event has stopped the walk.
    bool
    forEachEventInternal(const utils::core::function_ref<bool(const process::Event&)>& callback,
                         process::EventSearchOptions options) const;

    bool forEachTaskInternal(
        const utils::core::function_ref<bool(const process::Task&)>& callback) const;

    template <class Visit, class Member>
    static bool stops(Visit& visit, const Member& member) {
        if constexpr (std::is_void_v<std::invoke_result_t<Visit&, const Member&>>) {
            std::invoke(visit, member);
            return false;
        } else {
            return std::invoke(visit, member);
        }
    }

public:
    // The order of the virtual operations is fixed; the workbench implements all of them.

    virtual ~Element() = 0;

private:
    [[nodiscard]] virtual utils::string::BasicStringView<char> nameImpl() const = 0;
    [[nodiscard]] virtual std::string primaryKeyImpl() const = 0;
    [[nodiscard]] virtual utils::core::Uuid uuidImpl() const = 0;
    [[nodiscard]] virtual std::wstring typeImpl() const = 0;
    [[nodiscard]] virtual ElementCategory categoryImpl() const = 0;
    [[nodiscard]] virtual bool isInvisibleRootImpl() const = 0;
    [[nodiscard]] virtual const Element*
    findAncestorImpl(const skill::Element::Class& elementClass) const = 0;
    [[nodiscard]] virtual bool isDescendentOfImpl(const Element& other) const = 0;

    // A walk calls `callback` once for each member, stops as soon as that returns true, and
    // returns whether it was stopped. `forwardedFlag` comes from the options of the search; its
    // meaning is up to the implementation.
    virtual bool forEachAttributeImpl(
        const utils::core::function_ref<bool(const Attribute&)>& callback) const = 0;
    virtual bool
    forEachEventImpl(const utils::core::function_ref<bool(const process::Event&)>& callback,
                     bool forwardedFlag) const = 0;
    virtual bool forEachTaskImpl(
        const utils::core::function_ref<bool(const process::Task&)>& callback) const = 0;

    [[nodiscard]] virtual ChildElementAccessor childElementsImpl() const = 0;
    [[nodiscard]] virtual const Element* childElementImpl(std::string_view name) const = 0;
    [[nodiscard]] virtual const Element* parentElementImpl() const = 0;

    /// Null when the element was not made by a skill.
    [[nodiscard]] virtual skill::Element* skillElementImpl() const = 0;

    /// A reference to this element, or to its member of that name, which need not exist.
    [[nodiscard]] virtual internal::ElementReferenceData
    referenceDataImpl(std::optional<std::string> memberName) const = 0;
};

} // namespace corvane::workbench::model
