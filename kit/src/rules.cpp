#include <corvane/workbench/kit/internal/rules.hpp>

#include "translationContext.hpp"
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/kit/translate.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

namespace corvane::workbench::kit::internal {

namespace {

template <class Number>
State outOfRangeText(const char* message, Number lowest, Number highest) {
    if (*message != '\0') {
        return broken(message);
    }
    return error("The value must lie between {} and {}.", lowest, highest);
}

// Whether the reference resolves to an element is a rule of its own, which comes first.
template <class Fits>
State leadsTo(const model::internal::BasicElementReference& reference, const char* message,
              const Fits& fits) {
    const auto element = reference.data().element();
    if (!element || fits(element->get())) {
        return {};
    }
    return tl::unexpected(format(*message != '\0' ? message : "The element “{}” does not fit here.",
                                 {utils::string::toWide(element->get().primaryKey())}));
}

} // namespace

State broken(const char* message) {
    return tl::unexpected(translated(message));
}

State outOfRange(const char* message, double lowest, double highest) {
    return outOfRangeText(message, lowest, highest);
}

State outOfRange(const char* message, std::int64_t lowest, std::int64_t highest) {
    return outOfRangeText(message, lowest, highest);
}

State outOfRange(const char* message, std::uint64_t lowest, std::uint64_t highest) {
    return outOfRangeText(message, lowest, highest);
}

std::function<State()> classRule(const model::internal::BasicElementReference& reference,
                                 const skill::Element::Class& elementClass, const char* message) {
    return [&reference, &elementClass, message] {
        return leadsTo(reference, message,
                       [&](const model::Element& element) { return element.isA(elementClass); });
    };
}

std::function<State()> categoryRule(const model::internal::BasicElementReference& reference,
                                    utils::core::Flags<model::ElementCategory> categories,
                                    const char* message) {
    return [&reference, categories, message] {
        return leadsTo(reference, message, [&](const model::Element& element) {
            return element.checkCategory(categories);
        });
    };
}

} // namespace corvane::workbench::kit::internal
