#pragma once

// The export macro of the plug-in library. Classes and functions marked with it are the
// library's whole binary surface; everything else has hidden visibility.

#if defined(_WIN32)
#if defined(CORVANE_WORKBENCH_BUILDING)
#define CORVANE_WORKBENCH_EXPORT __declspec(dllexport)
#else
#define CORVANE_WORKBENCH_EXPORT __declspec(dllimport)
#endif
#else
#define CORVANE_WORKBENCH_EXPORT [[gnu::visibility("default")]]
#endif
