# What the build file of a skill needs; comes with the package and with add_subdirectory.
include_guard(GLOBAL)
include(GNUInstallDirs)

# corvane_add_skill(NAME
#     SOURCES file...
#     [LIBRARIES target...]         linked besides the plug-in library and the kit
#     [CONFIGURATIONS file...]      checked by tests named NAME.check.FILE
#     [DESTINATION folder])         where it is installed, below the prefix
#
# Adds the target NAME: the skill's library, which a workbench opens. It is installed unless
# CORVANE_INSTALL_SKILLS is OFF.
function(corvane_add_skill name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "SOURCES;LIBRARIES;CONFIGURATIONS")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "corvane_add_skill(${name}): unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT arg_SOURCES)
        message(FATAL_ERROR "corvane_add_skill(${name}): SOURCES are missing")
    endif()

    add_library(${name} MODULE ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES
        PREFIX "" CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_compile_features(${name} PRIVATE cxx_std_20)
    target_link_libraries(${name} PRIVATE
        ${arg_LIBRARIES} $<TARGET_NAME_IF_EXISTS:Corvane::SkillKit> Corvane::WorkbenchPlugin)
    corvane_add_warnings(${name})

    if(NOT arg_DESTINATION)
        set(arg_DESTINATION "${CMAKE_INSTALL_LIBDIR}/corvane-workbench/skills")
    endif()
    if(NOT DEFINED CORVANE_INSTALL_SKILLS OR CORVANE_INSTALL_SKILLS)
        install(TARGETS ${name} LIBRARY DESTINATION "${arg_DESTINATION}")
    endif()

    if(arg_CONFIGURATIONS AND NOT TARGET Corvane::skillbench)
        message(WARNING "corvane_add_skill(${name}): there is no skillbench here, so its configurations "
                        "are not checked; with add_subdirectory, set CORVANE_BUILD_TOOLS to ON")
        return()
    endif()
    foreach(configuration IN LISTS arg_CONFIGURATIONS)
        get_filename_component(stem "${configuration}" NAME_WE)
        get_filename_component(path "${configuration}" ABSOLUTE)
        add_test(NAME ${name}.check.${stem}
            COMMAND Corvane::skillbench check --skill $<TARGET_FILE:${name}> "${path}")
    endforeach()
endfunction()

# corvane_add_skill_test(NAME SKILL skill SOURCES file... [LIBRARIES target...])
#
# Adds the test program NAME over Corvane::SkillTesting. The program knows the skill's library as the
# text SKILL_LIBRARY. Add a test framework as one of the LIBRARIES, and the test with add_test or with
# what the framework brings.
function(corvane_add_skill_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SKILL" "SOURCES;LIBRARIES")
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "corvane_add_skill_test(${name}): unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    if(NOT arg_SOURCES OR NOT TARGET "${arg_SKILL}")
        message(FATAL_ERROR "corvane_add_skill_test(${name}): SOURCES or the target SKILL are missing")
    endif()

    add_executable(${name} ${arg_SOURCES})
    target_compile_features(${name} PRIVATE cxx_std_20)
    target_link_libraries(${name} PRIVATE Corvane::SkillTesting ${arg_LIBRARIES})
    target_compile_definitions(${name} PRIVATE SKILL_LIBRARY="$<TARGET_FILE:${arg_SKILL}>")
    add_dependencies(${name} ${arg_SKILL})
    corvane_add_warnings(${name})
    if(WIN32)
        # There a program finds libraries in its own folder only.
        corvane_compiler_libraries(compiler_libraries)
        add_custom_command(TARGET ${name} POST_BUILD COMMAND_EXPAND_LISTS VERBATIM
            COMMAND "${CMAKE_COMMAND}" -E copy_if_different $<TARGET_RUNTIME_DLLS:${name}>
                ${compiler_libraries} $<TARGET_FILE_DIR:${name}>)
    endif()
endfunction()

# The warnings that are worth having, for a target of one's own.
function(corvane_add_warnings target)
    if(MSVC)
        # Exported classes have members of the standard library: all sides share one runtime.
        target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive- /wd4251 /wd4275)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion
                               -Wshadow -Wnon-virtual-dtor)
    endif()
endfunction()

# The libraries of the compiler that programs need beside them: a cross compiler's are in no folder
# that Windows would look into.
function(corvane_compiler_libraries variable)
    set(libraries "")
    if(MINGW AND CMAKE_CROSSCOMPILING)
        foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
            execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${name}"
                            OUTPUT_VARIABLE place OUTPUT_STRIP_TRAILING_WHITESPACE)
            file(REAL_PATH "${place}" place)
            list(APPEND libraries "${place}")
        endforeach()
    endif()
    set(${variable} "${libraries}" PARENT_SCOPE)
endfunction()
