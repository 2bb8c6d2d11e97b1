# Installing, and the packages that other projects find: CorvaneUtils, CorvaneWorkbenchPlugin.
include_guard(GLOBAL)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# corvane_install_targets(EXPORT TARGETS target... [DESTINATION folder])
# Installs targets so that a package finds them in EXPORT.cmake.
function(corvane_install_targets export)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "TARGETS")
    if(NOT CORVANE_INSTALL)
        return()
    endif()
    install(TARGETS ${arg_TARGETS} EXPORT ${export}
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(EXPORT ${export} NAMESPACE Corvane:: DESTINATION "${arg_DESTINATION}")
endfunction()

# corvane_install_config(PACKAGE CONFIG template DESTINATION folder [FILES file...])
# Installs what find_package reads. While the version is 0.x, only the same minor version is
# compatible.
function(corvane_install_config package)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "CONFIG;DESTINATION" "FILES")
    if(NOT CORVANE_INSTALL)
        return()
    endif()
    configure_package_config_file("${arg_CONFIG}" "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
        INSTALL_DESTINATION "${arg_DESTINATION}")
    if(PROJECT_VERSION_MAJOR EQUAL 0)
        set(compatibility SameMinorVersion)
    else()
        set(compatibility SameMajorVersion)
    endif()
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        COMPATIBILITY ${compatibility})
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
                  "${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake" ${arg_FILES}
            DESTINATION "${arg_DESTINATION}")
endfunction()

# corvane_install_pkgconfig(NAME TARGET target DESCRIPTION text [REQUIRES name...] [LIBRARIES name...])
# Installs NAME.pc for those who do not use CMake. It finds its folder by itself.
function(corvane_install_pkgconfig name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TARGET;DESCRIPTION" "REQUIRES;LIBRARIES")
    if(NOT CORVANE_INSTALL)
        return()
    endif()
    set(folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH to_prefix "/${folder}" "/")
    string(REGEX REPLACE "/$" "" to_prefix "${to_prefix}")
    get_target_property(library ${arg_TARGET} OUTPUT_NAME)
    list(JOIN arg_REQUIRES " " requires)
    list(TRANSFORM arg_LIBRARIES PREPEND "-l")
    list(JOIN arg_LIBRARIES " " libraries)
    configure_file("${CMAKE_CURRENT_FUNCTION_LIST_DIR}/package.pc.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" DESTINATION "${folder}")
endfunction()
