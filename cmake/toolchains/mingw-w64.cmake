# Cross build for 64-bit Windows with mingw-w64 GCC (posix threads); programs run in Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

# Header-only packages come through a folder of links: the system's include folder would bring the
# host's C library along.
set(links "${CMAKE_BINARY_DIR}/header-links")
foreach(header IN ITEMS tl cxxopts.hpp fast_float)
    if(EXISTS "/usr/include/${header}" AND NOT EXISTS "${links}/include/${header}")
        file(MAKE_DIRECTORY "${links}/include")
        file(CREATE_LINK "/usr/include/${header}" "${links}/include/${header}" SYMBOLIC)
    endif()
endforeach()
foreach(package IN ITEMS tl-expected:tl::expected cxxopts:cxxopts::cxxopts
        FastFloat:FastFloat::fast_float)
    string(REGEX MATCH "^([^:]+):(.*)$" _ "${package}")
    string(TOLOWER "${CMAKE_MATCH_1}" name)
    file(WRITE "${links}/lib/cmake/${name}/${name}-config.cmake"
        "if(NOT TARGET ${CMAKE_MATCH_2})
    add_library(${CMAKE_MATCH_2} INTERFACE IMPORTED)
    set_target_properties(${CMAKE_MATCH_2} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES \"${links}/include\")
endif()\n")
endforeach()

# Packages for Windows lie where the project says, not in the system's folders.
string(REPLACE ":" ";" prefixes "$ENV{CMAKE_PREFIX_PATH}")
set(CMAKE_FIND_ROOT_PATH "${links}" /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH} ${prefixes})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
