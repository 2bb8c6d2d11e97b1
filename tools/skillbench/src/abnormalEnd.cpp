#include "abnormalEnd.hpp"

#include "ExitCode.hpp"
#include "LineBuffer.hpp"
#include "console.hpp"
#include <corvane/utils/io/temporaryFiles.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace corvane::skillbench {

namespace {

using workbench::host::CurrentOperation;

// Everything here that a signal handler calls neither allocates nor throws.

std::array<char, 4096> configuration{};
LineBuffer* pendingOutput = nullptr;

/// Writes a piece of a line: names of elements may hold whatever they like.
void put(std::string_view text) noexcept {
    const auto isControl = [](char character) {
        return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
    };
    while (!text.empty()) {
        const auto end = std::find_if(text.begin(), text.end(), isControl);
        const auto plain = static_cast<std::size_t>(end - text.begin());
        (void)writeToErrorStream(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty()) {
            (void)writeToErrorStream("?");
            text.remove_prefix(1);
        }
    }
}

void putNumber(std::uint64_t number) noexcept {
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    put({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

/// Says it once, however many ways the end takes.
void report(std::string_view cause, std::string_view message = {}) noexcept {
    static std::atomic_flag isReported;
    if (isReported.test_and_set()) {
        return;
    }
    if (pendingOutput != nullptr) {
        pendingOutput->writeLines();
    }
    const CurrentOperation* operation = CurrentOperation::innermost();
    if (operation != nullptr && operation->line() != 0 && configuration.front() != '\0') {
        put(configuration.data());
        put(":");
        putNumber(operation->line());
        put(":");
        putNumber(operation->column());
        put(": error: ");
    } else {
        put("skillbench: ");
    }
    if (operation != nullptr) {
        operation->writeSubject(put);
        put(" ended the program by ");
        put(cause);
        put(" while ");
        operation->writeAction(put);
    } else {
        put("the program ended by ");
        put(cause);
    }
    if (!message.empty()) {
        put(": ");
        put(message);
    }
    (void)writeToErrorStream("\n");
}

[[noreturn]] void onTerminate() {
    constexpr std::string_view kCause = "std::terminate";
    if (const std::exception_ptr exception = std::current_exception()) {
        try {
            std::rethrow_exception(exception);
        } catch (const std::exception& known) {
            report(kCause, known.what());
        } catch (...) {
            report(kCause, "something that is no std::exception was thrown");
        }
    } else {
        report(kCause);
    }
    std::abort();
}

void onExit() {
    if (CurrentOperation::innermost() != nullptr) {
        report("exit");
        utils::io::removeTemporaryFiles();
        std::_Exit(kProblems);
    }
}

#ifdef _WIN32

std::string_view nameOf(DWORD exception) noexcept {
    switch (exception) {
    case EXCEPTION_ACCESS_VIOLATION:
        return "a segmentation fault";
    case EXCEPTION_STACK_OVERFLOW:
        return "a stack overflow";
    case EXCEPTION_ILLEGAL_INSTRUCTION:
        return "an illegal instruction";
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
        return "an arithmetic error";
    default:
        return "an exception of the system";
    }
}

LONG WINAPI onException(EXCEPTION_POINTERS* exception) {
    report(nameOf(exception->ExceptionRecord->ExceptionCode));
    utils::io::removeTemporaryFiles();
    // Without a window that somebody would have to close.
    return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void end(UINT exitCode) noexcept {
    utils::io::removeTemporaryFiles();
    TerminateProcess(GetCurrentProcess(), exitCode);
    std::_Exit(static_cast<int>(exitCode));
}

// The exit codes are those of the system.

void onAbort(int /*signal*/) {
    constexpr UINT kAborted = 3;
    report("abort");
    end(kAborted);
}

void onInterruption(int /*signal*/) {
    constexpr UINT kInterrupted = 0xC000013A;
    end(kInterrupted);
}

void handleSignals() {
    SetUnhandledExceptionFilter(onException);
    // For the report of a stack overflow.
    ULONG reserve = 64 * 1024;
    SetThreadStackGuarantee(&reserve);
    std::signal(SIGABRT, onAbort);
    for (const int signal : {SIGINT, SIGTERM, SIGBREAK}) {
        std::signal(signal, onInterruption);
    }
}

#else

struct Crash {
    int signal;
    std::string_view name;
    struct sigaction before;
};

std::array<Crash, 5> crashes{{{SIGSEGV, "a segmentation fault", {}},
                              {SIGBUS, "a bus error", {}},
                              {SIGILL, "an illegal instruction", {}},
                              {SIGFPE, "an arithmetic error", {}},
                              {SIGABRT, "abort", {}}}};

/// Leaves the end itself to whoever was in charge before.
void onCrash(int signal) {
    const auto crash = std::find_if(crashes.begin(), crashes.end(), [&](const Crash& candidate) {
        return candidate.signal == signal;
    });
    report(crash->name);
    utils::io::removeTemporaryFiles();
    sigaction(signal, &crash->before, nullptr);
    raise(signal);
}

void onInterruption(int signal) {
    utils::io::removeTemporaryFiles();
    std::signal(signal, SIG_DFL);
    raise(signal);
}

void handleSignals() {
    // A stack of its own: the other one may be what has run out.
    static std::array<char, 65536> stack;
    stack_t alternative{};
    alternative.ss_sp = stack.data();
    alternative.ss_size = stack.size();
    sigaltstack(&alternative, nullptr);
    struct sigaction action{};
    action.sa_flags = SA_ONSTACK;
    action.sa_handler = onCrash;
    for (Crash& crash : crashes) {
        sigaction(crash.signal, &action, &crash.before);
    }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        // Who has been told to ignore it goes on doing so.
        if (std::signal(signal, onInterruption) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

#endif

} // namespace

void setConfigurationName(std::string_view name) noexcept {
    const std::size_t size = std::min(name.size(), configuration.size() - 1);
    std::copy_n(name.begin(), size, configuration.begin());
    configuration[size] = '\0';
}

std::string configurationName() {
    return configuration.data();
}

void reportAbnormalEnd(LineBuffer& output) {
    pendingOutput = &output;
    std::set_terminate(onTerminate);
    std::atexit(onExit);
    handleSignals();
}

} // namespace corvane::skillbench
