#include "PumpStation.hpp"

#include "ElementClass.hpp"
#include "elementClasses.hpp"
#include "text.hpp"

namespace pump_station {

namespace {

const PumpStation::Class kPumpStation;

} // namespace

std::string_view PumpStation::Class::id() const {
    return "PumpStation";
}

std::wstring PumpStation::Class::displayName() const {
    return text("Pump station");
}

std::string_view PumpStation::Class::version() const {
    return "1.0.0";
}

void PumpStation::Class::registerElementClasses(Registry& registry) const {
    for (const ElementClass* elementClass : allElementClasses()) {
        registry.registerElementClass(*elementClass);
    }
}

std::unique_ptr<corvane::workbench::skill::Skill> PumpStation::Class::createSkill() const {
    return std::make_unique<PumpStation>();
}

} // namespace pump_station
