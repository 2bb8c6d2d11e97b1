#include "console.hpp"

#include <algorithm>
#include <cerrno>
#include <cstddef>

#ifdef _WIN32
#include <corvane/utils/string/transcode.hpp>

#include <windows.h>
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
// Needs what stands above.
#include <shellapi.h>
#else
#include <unistd.h>
#endif

namespace corvane::skillbench {

namespace {

bool writeTo(int descriptor, std::string_view text) noexcept {
    while (!text.empty()) {
#ifdef _WIN32
        constexpr std::size_t kMost = 1 << 20;
        const auto written =
            _write(descriptor, text.data(), static_cast<unsigned>(std::min(text.size(), kMost)));
#else
        const auto written = write(descriptor, text.data(), text.size());
#endif
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

} // namespace

#ifdef _WIN32

void prepareConsole() {
    SetConsoleOutputCP(CP_UTF8);
    // The same bytes as on other platforms, also in a file.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

std::vector<std::string> commandLineArguments(int argc, const char* const* argv) {
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (wide == nullptr) {
        return {argv + 1, argv + argc};
    }
    std::vector<std::string> arguments;
    for (int index = 1; index < count; ++index) {
        arguments.push_back(utils::string::toUtf8(wide[index]));
    }
    LocalFree(wide);
    return arguments;
}

bool isErrorStreamATerminal() {
    return _isatty(_fileno(stderr)) != 0;
}

#else

void prepareConsole() {}

std::vector<std::string> commandLineArguments(int argc, const char* const* argv) {
    if (argc < 1) {
        return {};
    }
    return {argv + 1, argv + argc};
}

bool isErrorStreamATerminal() {
    return isatty(STDERR_FILENO) != 0;
}

#endif

bool writeToOutputStream(std::string_view text) noexcept {
    return writeTo(1, text);
}

bool writeToErrorStream(std::string_view text) noexcept {
    return writeTo(2, text);
}

} // namespace corvane::skillbench
