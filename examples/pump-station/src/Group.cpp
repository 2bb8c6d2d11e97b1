#include "Group.hpp"

namespace pump_station {

void Group::describe(kit::Form& form) {
    form.text("description", "Description", description_).initially("Describe what belongs here.");
}

} // namespace pump_station
