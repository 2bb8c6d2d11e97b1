#include <corvane/workbench/host/ElementClassRegistry.hpp>

#include "text.hpp"

#include <stdexcept>

namespace corvane::workbench::host {

ElementClassRegistry::ElementClassRegistry() = default;
ElementClassRegistry::~ElementClassRegistry() = default;

void ElementClassRegistry::registerElementClass(const skill::Element::Class& elementClass) {
    std::string id(elementClass.id());
    if (id.empty()) {
        throw std::invalid_argument("an element class must not have an empty id");
    }
    const auto known = _byId.find(id);
    if (known != _byId.end()) {
        if (known->second == &elementClass) {
            return;
        }
        throw std::invalid_argument("there are two element classes with the id " + inQuotes(id));
    }
    const corvane::utils::core::Uuid uuid = elementClass.uuid();
    if (const auto other = _byUuid.find(uuid); other != _byUuid.end()) {
        throw std::invalid_argument("the element classes " + inQuotes(other->second->id()) +
                                    " and " + inQuotes(id) + " have the same UUID " +
                                    uuid.toString());
    }
    _all.reserve(_all.size() + 1);
    const auto byId = _byId.emplace(std::move(id), &elementClass).first;
    try {
        _byUuid.emplace(uuid, &elementClass);
    } catch (...) {
        _byId.erase(byId);
        throw;
    }
    _all.emplace_back(elementClass);
}

const skill::Element::Class* ElementClassRegistry::find(std::string_view id) const {
    const auto found = _byId.find(std::string(id));
    return found == _byId.end() ? nullptr : found->second;
}

void ElementClassRegistry::truncate(std::size_t count) noexcept {
    while (_all.size() > count) {
        const skill::Element::Class* last = &_all.back().get();
        std::erase_if(_byId, [last](const auto& entry) { return entry.second == last; });
        std::erase_if(_byUuid, [last](const auto& entry) { return entry.second == last; });
        _all.pop_back();
    }
}

} // namespace corvane::workbench::host
