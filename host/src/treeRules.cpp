#include "treeRules.hpp"

#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/LoadedSkill.hpp>
#include <corvane/workbench/host/text.hpp>

#include <utility>

namespace corvane::workbench::host {

tl::unexpected<Problem> refuse(std::string text) {
    Problem problem;
    problem.text = std::move(text);
    return tl::unexpected(std::move(problem));
}

bool allowsChild(const ElementNode& parent, const skill::Element::Class& childClass) {
    return parent.isInvisibleRoot() ||
           callSkill(
               CurrentOperation::Kind::Describe,
               [&] { return parent.elementClass().allowChildElement(childClass); },
               LoadedSkill::idOfSkillWith(parent.elementClass()));
}

std::string childRefused(const ElementNode& parent, const skill::Element::Class& childClass) {
    return "an element of the class " + inQuotes(parent.elementClass().id()) +
           " does not accept children of the class " + inQuotes(childClass.id());
}

std::string nameTaken(const ElementNode& parent, std::string_view name) {
    return parent.isInvisibleRoot() ? "there is already a top-level element named " + inQuotes(name)
                                    : "the element " + inQuotes(parent.primaryKey()) +
                                          " already has a child named " + inQuotes(name);
}

} // namespace corvane::workbench::host
