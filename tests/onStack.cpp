#include "onStack.hpp"

#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>
#endif

namespace corvane::tests {

#ifdef _WIN32

void runOnStack(std::size_t size, const std::function<void()>& action) {
    const auto run = [](void* argument) -> DWORD {
        (*static_cast<const std::function<void()>*>(argument))();
        return 0;
    };
    HANDLE thread = CreateThread(nullptr, size, run, const_cast<std::function<void()>*>(&action),
                                 STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    if (thread == nullptr) {
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
    }
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
}

#else

void runOnStack(std::size_t size, const std::function<void()>& action) {
    const auto check = [](int error) {
        if (error != 0) {
            throw std::system_error(error, std::system_category());
        }
    };
    const auto run = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_attr_t attributes;
    check(pthread_attr_init(&attributes));
    pthread_t thread{};
    int error = pthread_attr_setstacksize(&attributes, size);
    if (error == 0) {
        error =
            pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&action));
    }
    pthread_attr_destroy(&attributes);
    check(error);
    check(pthread_join(thread, nullptr));
}

#endif

} // namespace corvane::tests
