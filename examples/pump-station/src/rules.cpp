#include "rules.hpp"

#include "text.hpp"

namespace pump_station {

State require(bool condition, std::string_view message) {
    if (condition) {
        return {};
    }
    return tl::unexpected(text(message));
}

} // namespace pump_station
