# What is installed, and the archives that CPack makes of it.
include_guard(GLOBAL)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/CorvaneWorkbenchPlugin")
corvane_install_targets(CorvaneWorkbenchPluginTargets TARGETS corvane-workbench-plugin
    DESTINATION "${package_folder}")
corvane_install_targets(CorvaneWorkbenchPluginKitTargets TARGETS corvane-skill-kit
    DESTINATION "${package_folder}")
corvane_install_targets(CorvaneWorkbenchPluginHostTargets TARGETS corvane-workbench-host
    DESTINATION "${package_folder}")
corvane_install_targets(CorvaneWorkbenchPluginTestingTargets TARGETS corvane-skill-testing
    DESTINATION "${package_folder}")
corvane_install_config(CorvaneWorkbenchPlugin DESTINATION "${package_folder}"
    CONFIG "${CMAKE_CURRENT_LIST_DIR}/CorvaneWorkbenchPluginConfig.cmake.in"
    FILES "${CMAKE_CURRENT_LIST_DIR}/CorvaneAddSkill.cmake"
          "${CMAKE_CURRENT_LIST_DIR}/toolchains/mingw-w64.cmake")

corvane_install_pkgconfig(corvane-workbench-plugin TARGET corvane-workbench-plugin
    DESCRIPTION "${PROJECT_DESCRIPTION}" REQUIRES corvane-utils)
corvane_install_pkgconfig(corvane-skill-kit TARGET corvane-skill-kit
    DESCRIPTION "Settings of skills, said once" REQUIRES corvane-workbench-plugin)
corvane_install_pkgconfig(corvane-workbench-host TARGET corvane-workbench-host
    DESCRIPTION "The reference workbench" REQUIRES corvane-workbench-plugin
    LIBRARIES ${CMAKE_DL_LIBS})
corvane_install_pkgconfig(corvane-skill-testing TARGET corvane-skill-testing
    DESCRIPTION "A bench for tests of skills" REQUIRES corvane-workbench-host)

install(FILES README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY docs DESTINATION "${CMAKE_INSTALL_DOCDIR}" FILES_MATCHING PATTERN "*.md")
install(DIRECTORY examples DESTINATION "${CMAKE_INSTALL_DATADIR}/corvane-workbench")
if(CORVANE_BUILD_TOOLS)
    corvane_install_targets(CorvaneWorkbenchPluginToolsTargets TARGETS skillbench
        DESTINATION "${package_folder}")
endif()
# A Windows program finds libraries in its own folder only.
corvane_compiler_libraries(compiler_libraries)
install(FILES ${compiler_libraries} DESTINATION "${CMAKE_INSTALL_BINDIR}")

set(CPACK_PACKAGE_NAME corvane-workbench-plugin)
set(CPACK_PACKAGE_VENDOR Corvane)
set(CPACK_PACKAGE_CONTACT "Corvane <workbench@corvane.example>")
set(CPACK_PACKAGE_FILE_NAME
    "corvane-workbench-plugin-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
string(TOLOWER "${CPACK_PACKAGE_FILE_NAME}" CPACK_PACKAGE_FILE_NAME)
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_VERBATIM_VARIABLES ON)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR "TGZ;DEB")
endif()
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_DEPENDS libexpected-dev) # its headers are in ours
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
