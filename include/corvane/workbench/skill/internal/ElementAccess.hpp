#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <optional>

namespace corvane::workbench::skill::internal {

/// The workbench's access to the private operations of skill elements. Skills do not use it.
///
/// Each function forwards to the operation of the same name; see Element for the contracts.
class ElementAccess {
public:
    ElementAccess() = delete;

    /// Places the element in the tree. The supervisor must outlive the element's use and may be
    /// replaced by attaching another.
    static void attach(Element& element, AbstractElementSupervisor& supervisor) noexcept {
        element.supervisor_ = &supervisor;
    }

    static void load(Element& element, utils::json::decoder::Object& object,
                     config::Context& context) {
        element.load(object, context);
    }
    static void save(const Element& element, utils::json::encoder::Object& object) {
        element.save(object);
    }
    static void makeDefault(Element& element) { element.makeDefault(); }

    static bool
    forEachAttribute(const Element& element,
                     const utils::core::function_ref<bool(const model::Attribute&)>& callback) {
        return element.forEachAttribute(callback);
    }
    static bool
    forEachEvent(const Element& element,
                 const utils::core::function_ref<bool(const process::Event&)>& callback) {
        return element.forEachEvent(callback);
    }
    static bool forEachTask(const Element& element,
                            const utils::core::function_ref<bool(const process::Task&)>& callback) {
        return element.forEachTask(callback);
    }

    [[nodiscard]] static std::optional<utils::core::Uuid> importId(Element& element) {
        return element.importId();
    }
    static void importMerge(Element& element, const model::Element& other) {
        element.importMerge(other);
    }
    [[nodiscard]] static bool preserveExistingNameOnImport(const Element& element) {
        return element.preserveExistingNameOnImport();
    }
};

} // namespace corvane::workbench::skill::internal
