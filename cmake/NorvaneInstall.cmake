# SPDX-FileCopyrightText: Norvane contributors
# SPDX-License-Identifier: MIT

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Norvane)
# The next interface's translations may lie beside these.
set(norvane_translations_dir
    ${CMAKE_INSTALL_DATADIR}/norvane${PROJECT_VERSION_MAJOR}/translations)

install(TARGETS Norvane EXPORT NorvaneTargets)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/Norvane ${PROJECT_BINARY_DIR}/include/Norvane
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT NorvaneTargets NAMESPACE Norvane:: DESTINATION ${package_dir})
configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/NorvaneConfig.cmake.in
    ${PROJECT_BINARY_DIR}/NorvaneConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS norvane_translations_dir
    NO_SET_AND_CHECK_MACRO)
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NorvaneConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/NorvaneConfig.cmake
    ${PROJECT_BINARY_DIR}/NorvaneConfigVersion.cmake
    DESTINATION ${package_dir})

# The paths are relative to the file's own place, so that the installed tree can be moved.
set(pc_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_prefix ${pc_dir} ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
cmake_path(ABSOLUTE_PATH norvane_translations_dir BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}
    OUTPUT_VARIABLE pc_translationsdir)
file(RELATIVE_PATH pc_translationsdir ${CMAKE_INSTALL_PREFIX} ${pc_translationsdir})
configure_file(${CMAKE_CURRENT_LIST_DIR}/norvane.pc.in ${PROJECT_BINARY_DIR}/norvane.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/norvane.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
