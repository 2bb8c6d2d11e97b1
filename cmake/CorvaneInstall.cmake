# Installing, and the packages that other projects find: CorvaneUtils, CorvaneWorkbenchPlugin.
include_guard(GLOBAL)
include(CMakePackageConfigHelpers)

# corvane_install_package(PACKAGE CONFIG template TARGETS target...)
function(corvane_install_package package)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "CONFIG" "TARGETS")
    set(folder "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
    install(TARGETS ${arg_TARGETS} EXPORT ${package}Targets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(EXPORT ${package}Targets NAMESPACE Corvane:: DESTINATION "${folder}")
    configure_package_config_file("${arg_CONFIG}" "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
        INSTALL_DESTINATION "${folder}")
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
                  "${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
            DESTINATION "${folder}")
endfunction()
