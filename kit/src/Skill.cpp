#include <corvane/workbench/kit/Skill.hpp>

#include "translationContext.hpp"

namespace corvane::workbench::kit {

namespace {

class Instance final : public skill::Skill {};

} // namespace

Skill::Skill(const Description& description,
             std::initializer_list<std::reference_wrapper<const skill::Element::Class>> classes)
    : description_(description), classes_(classes) {
    internal::setTranslationContext(
        description.translationContext.empty() ? description.id : description.translationContext);
}

Skill::~Skill() = default;

std::string_view Skill::id() const {
    return description_.id;
}

std::wstring Skill::displayName() const {
    return internal::translated(description_.displayName);
}

std::string_view Skill::version() const {
    return description_.version;
}

void Skill::registerElementClasses(Registry& registry) const {
    for (const skill::Element::Class& elementClass : classes_) {
        if (const auto* described = dynamic_cast<const BasicElementClass*>(&elementClass)) {
            described->check();
        }
    }
    for (const skill::Element::Class& elementClass : classes_) {
        registry.registerElementClass(elementClass);
    }
}

std::unique_ptr<skill::Skill> Skill::createSkill() const {
    return std::make_unique<Instance>();
}

} // namespace corvane::workbench::kit
