#pragma once

// The terminal that the demonstration writes to.

namespace pump_station::demo {

/// Makes standard output take UTF-8, and the same bytes on every platform. To be called before
/// anything is written.
void prepareConsole();

} // namespace pump_station::demo
