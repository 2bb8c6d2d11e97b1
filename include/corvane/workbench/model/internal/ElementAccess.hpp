#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/model/Element.hpp>

#include <new>
#include <utility>

namespace corvane::workbench::model::internal {

/// Access to the private operations of model::Element, for the workbench and for this library; not
/// for skills.
class ElementAccess {
public:
    ElementAccess() = delete;

    /// The skill element; throws std::bad_cast when the element was not made by a skill. What the
    /// element is (lvalue or not, const or not) the result is as well.
    template <class E>
    [[nodiscard]] static decltype(auto) getSkillElement(E&& element) {
        return std::forward<E>(element).getSkillElement();
    }

    /// The skill element, or null.
    [[nodiscard]] static skill::Element* getSkillElement(Element& element, std::nothrow_t) {
        return element.getSkillElement(std::nothrow);
    }
    [[nodiscard]] static const skill::Element* getSkillElement(const Element& element,
                                                               std::nothrow_t) {
        return element.getSkillElement(std::nothrow);
    }

    // The walks over the members, for those who hold a callback already.

    static bool
    forEachAttribute(const Element& element,
                     const utils::core::function_ref<bool(const Attribute&)>& callback) {
        return element.forEachAttributeInternal(callback);
    }

    /// False also when an event, and not the change event of an attribute, has stopped the walk.
    static bool forEachEvent(const Element& element,
                             const utils::core::function_ref<bool(const process::Event&)>& callback,
                             process::EventSearchOptions options) {
        return element.forEachEventInternal(callback, options);
    }

    static bool forEachTask(const Element& element,
                            const utils::core::function_ref<bool(const process::Task&)>& callback) {
        return element.forEachTaskInternal(callback);
    }
};

} // namespace corvane::workbench::model::internal
