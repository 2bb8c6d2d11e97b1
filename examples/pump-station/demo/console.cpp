#include "console.hpp"

#ifdef _WIN32
#include <windows.h>
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#endif

namespace pump_station::demo {

#ifdef _WIN32

void prepareConsole() {
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
}

#else

void prepareConsole() {}

#endif

} // namespace pump_station::demo
