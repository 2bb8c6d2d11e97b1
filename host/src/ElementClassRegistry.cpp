#include <corvane/workbench/host/ElementClassRegistry.hpp>

#include <corvane/workbench/host/text.hpp>

#include <stdexcept>

namespace corvane::workbench::host {

ElementClassRegistry::ElementClassRegistry() = default;
ElementClassRegistry::~ElementClassRegistry() = default;

void ElementClassRegistry::registerElementClass(const skill::Element::Class& elementClass) {
    std::string id(elementClass.id());
    if (id.empty()) {
        throw std::invalid_argument("an element class must not have an empty id");
    }
    const auto known = byId_.find(id);
    if (known != byId_.end()) {
        if (known->second == &elementClass) {
            return;
        }
        throw std::invalid_argument("there are two element classes with the id " + inQuotes(id));
    }
    const utils::core::Uuid uuid = elementClass.uuid();
    if (const auto other = byUuid_.find(uuid); other != byUuid_.end()) {
        throw std::invalid_argument("the element classes " + inQuotes(other->second->id()) +
                                    " and " + inQuotes(id) + " have the same UUID " +
                                    uuid.toString());
    }
    all_.reserve(all_.size() + 1);
    const auto byId = byId_.emplace(std::move(id), &elementClass).first;
    try {
        byUuid_.emplace(uuid, &elementClass);
    } catch (...) {
        byId_.erase(byId);
        throw;
    }
    all_.emplace_back(elementClass);
}

const skill::Element::Class* ElementClassRegistry::find(std::string_view id) const {
    const auto found = byId_.find(std::string(id));
    return found == byId_.end() ? nullptr : found->second;
}

void ElementClassRegistry::truncate(std::size_t count) noexcept {
    while (all_.size() > count) {
        const skill::Element::Class* last = &all_.back().get();
        std::erase_if(byId_, [last](const auto& entry) { return entry.second == last; });
        std::erase_if(byUuid_, [last](const auto& entry) { return entry.second == last; });
        all_.pop_back();
    }
}

} // namespace corvane::workbench::host
