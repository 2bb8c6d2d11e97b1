#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace corvane::workbench::host {

/// The element classes that a workbench knows, by their names in configuration files. The classes
/// are referred to, not owned.
class ElementClassRegistry final : public skill::Skill::Class::Registry {
public:
    ElementClassRegistry();
    ~ElementClassRegistry() override;

    /// Throws std::invalid_argument, with a sentence for the user, when the id is empty or when id
    /// or UUID are taken; nothing is registered then. Needs no second call for the same class.
    void registerElementClass(const skill::Element::Class& elementClass) override;

    /// The class of that id, or null.
    [[nodiscard]] const skill::Element::Class* find(std::string_view id) const;
    /// In the order of registration.
    [[nodiscard]] const std::vector<std::reference_wrapper<const skill::Element::Class>>&
    all() const noexcept {
        return all_;
    }

    /// Forgets all classes but the first `count`.
    void truncate(std::size_t count) noexcept;

private:
    std::vector<std::reference_wrapper<const skill::Element::Class>> all_;
    // Keyed by the classes' own ids, copied because a class may compute its id anew at each call.
    std::unordered_map<std::string, const skill::Element::Class*> byId_;
    std::unordered_map<utils::core::Uuid, const skill::Element::Class*> byUuid_;
};

} // namespace corvane::workbench::host
