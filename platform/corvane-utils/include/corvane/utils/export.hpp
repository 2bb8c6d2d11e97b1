#pragma once

// The export macro of the utility library. Classes and functions marked with it are the
// library's whole binary surface; everything else has hidden visibility.

#if defined(_WIN32)
#if defined(CORVANE_UTILS_BUILDING)
#define CORVANE_UTILS_EXPORT __declspec(dllexport)
#else
#define CORVANE_UTILS_EXPORT __declspec(dllimport)
#endif
#else
#define CORVANE_UTILS_EXPORT [[gnu::visibility("default")]]
#endif
