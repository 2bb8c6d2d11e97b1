#include "ElementClass.hpp"

#include "text.hpp"

namespace pump_station {

namespace core = corvane::utils::core;
namespace model = corvane::workbench::model;
namespace skill = corvane::workbench::skill;

ElementClass::ElementClass(const Description& description,
                           const skill::AbstractElementFactory& factory)
    : description_(description), factory_(factory) {}

std::string_view ElementClass::id() const {
    return description_.id;
}

core::Uuid ElementClass::uuid() const {
    return core::Uuid::parse(description_.uuid).value();
}

std::wstring ElementClass::displayName() const {
    return text(description_.displayName);
}

std::wstring ElementClass::description() const {
    return text(description_.description);
}

model::ElementCategory ElementClass::category() const {
    return description_.category;
}

const skill::AbstractElementFactory& ElementClass::factory() const {
    return factory_;
}

bool ElementClass::allowChildElement(const Class& childClass) const {
    return description_.children.test(childClass.category());
}

std::string ElementClass::defaultName() const {
    return std::string(description_.defaultName);
}

} // namespace pump_station
