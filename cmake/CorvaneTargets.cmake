# Settings that every target of this project shares.
include_guard(GLOBAL)
include(GNUInstallDirs)
include(CorvaneAddSkill)

set(CMAKE_CXX_EXTENSIONS OFF)
if(NOT DEFINED CMAKE_CXX_STANDARD)
    set(CMAKE_CXX_STANDARD 20)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)

find_program(CORVANE_CCACHE ccache)
mark_as_advanced(CORVANE_CCACHE)
if(CORVANE_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CORVANE_CCACHE}")
endif()

# Programs find the libraries beside them on Windows, and skills load from one folder.
if(NOT DEFINED CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
endif()

# Nobody replaces functions of our libraries at run time: let them call each other directly.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
    add_compile_options(-fno-semantic-interposition)
endif()

# What is installed finds what is installed with it, wherever that is.
if(NOT WIN32 AND NOT DEFINED CMAKE_INSTALL_RPATH)
    set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
endif()

if(CORVANE_SANITIZE)
    add_compile_options("-fsanitize=${CORVANE_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options("-fsanitize=${CORVANE_SANITIZE}")
endif()

# Warnings belong to our own targets, not to those of the libraries we use.
function(corvane_set_warnings target)
    corvane_add_warnings(${target})
    if(CORVANE_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE $<IF:$<CXX_COMPILER_ID:MSVC>,/WX,-Werror>)
    endif()
endfunction()

# While the version is 0.x, only the same minor version is compatible.
function(corvane_set_version target)
    if(PROJECT_VERSION_MAJOR EQUAL 0)
        set(compatible 0.${PROJECT_VERSION_MINOR})
    else()
        set(compatible ${PROJECT_VERSION_MAJOR})
    endif()
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${compatible})
endfunction()

# Templates of the standard library that a library uses would otherwise be exported along with its
# own classes. Sanitizers need symbols of theirs to be seen.
function(corvane_export_only_own_symbols target)
    if(CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF" AND NOT CORVANE_SANITIZE)
        set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/corvane.map")
        target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
    endif()
endfunction()

# Windows has no search path for libraries but the program's own folder.
corvane_compiler_libraries(compiler_libraries)
if(compiler_libraries)
    file(COPY ${compiler_libraries} DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
endif()
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "") # CorvaneUtils.dll with every compiler
endif()
if(MSVC)
    add_compile_definitions(NOMINMAX) # the other compilers' standard library defines it
endif()
