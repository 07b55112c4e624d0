# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: LGPL-3.0-or-later

# What `cmake --install` puts where. Every path that both Qt versions would write carries VNA_PACKAGE or
# VNA_SUFFIX, so that the two stand side by side in one prefix. Three components: Runtime, Development, Panel.
include(CMakePackageConfigHelpers)

set(VNA_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/${VNA_PACKAGE})
set(VNA_DATA_DIR ${CMAKE_INSTALL_DATADIR}/${VNA_PACKAGE})
set(VNA_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/${VNA_PACKAGE})
set(VNA_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/${VNA_PACKAGE})

set(VNA_INSTALLED vnawidgets)
if(VNAWIDGETS_PLATFORM_TARGET)
    set(VNA_FIND_PLATFORM "find_dependency(${VNAWIDGETS_PLATFORM_PACKAGE})")
else()
    list(APPEND VNA_INSTALLED vnaplatform)
endif()

# So that a program and a library in one prefix find each other, wherever the prefix is moved.
set_property(TARGET ${VNA_INSTALLED} PROPERTY INSTALL_RPATH "$ORIGIN")
install(TARGETS ${VNA_INSTALLED} EXPORT VnaTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    FILE_SET HEADERS DESTINATION ${VNA_INCLUDE_DIR} COMPONENT Development
    FILE_SET generated_headers DESTINATION ${VNA_INCLUDE_DIR} COMPONENT Development)
install(EXPORT VnaTargets NAMESPACE VnaWidgetsQt${VNAWIDGETS_QT_MAJOR}::
    FILE ${VNA_PACKAGE}Targets.cmake DESTINATION ${VNA_CMAKE_DIR} COMPONENT Development)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VnaWidgetsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/${VNA_PACKAGE}Config.cmake
    INSTALL_DESTINATION ${VNA_CMAKE_DIR} PATH_VARS VNA_DATA_DIR
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${VNA_PACKAGE}ConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/${VNA_PACKAGE}Config.cmake
    ${PROJECT_BINARY_DIR}/${VNA_PACKAGE}ConfigVersion.cmake
    DESTINATION ${VNA_CMAKE_DIR} COMPONENT Development)

# The way from the folder of the .pc file to the prefix, so that it follows the prefix, too.
file(RELATIVE_PATH VNA_PC_PREFIX ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
get_target_property(VNA_QCUSTOMPLOT_FILE ${VNAWIDGETS_QCUSTOMPLOT} LOCATION)
cmake_path(GET VNA_QCUSTOMPLOT_FILE STEM VNA_QCUSTOMPLOT_LIBRARY)
string(REGEX REPLACE "^lib" "" VNA_QCUSTOMPLOT_LIBRARY "${VNA_QCUSTOMPLOT_LIBRARY}")
if(NOT VNAWIDGETS_PLATFORM_TARGET)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/vnawidgets.pc.in ${PROJECT_BINARY_DIR}/vnawidgets${VNA_SUFFIX}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/vnawidgets${VNA_SUFFIX}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endif()

# Style sheets and icons: what a host copies beside its program and compiles in.
install(FILES configuration/theme-base.css configuration/theme-dark.css configuration/theme-light.css
    DESTINATION ${VNA_DATA_DIR}/configuration COMPONENT Runtime)
install(FILES resources/vnaresources.qrc DESTINATION ${VNA_DATA_DIR}/resources COMPONENT Development)
install(DIRECTORY resources/svg resources/png DESTINATION ${VNA_DATA_DIR}/resources COMPONENT Development)
install(FILES translations/vnatranslations.qrc ${VNA_CATALOGUES}
    DESTINATION ${VNA_DATA_DIR}/translations COMPONENT Development)

# vna_install_program(<target>): a program that wants "../configuration" beside its folder. /usr/configuration would
# be in everybody's way, so it lives in a folder of its own, with a link to it where programs are looked for.
function(vna_install_program target)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${target}${VNA_SUFFIX}
        INSTALL_RPATH "$ORIGIN/../../../${CMAKE_INSTALL_LIBDIR}")
    install(TARGETS ${target} RUNTIME DESTINATION ${VNA_PROGRAM_DIR}/bin COMPONENT Panel)
    vna_relative_link(${CMAKE_INSTALL_BINDIR} ${VNA_PROGRAM_DIR}/bin/${target}${VNA_SUFFIX} ${target}${VNA_SUFFIX})
    vna_relative_link(${VNA_PROGRAM_DIR} ${VNA_DATA_DIR}/configuration configuration)
endfunction()

# vna_relative_link(<folder> <to> <name>): installs a symbolic link; all below the prefix.
function(vna_relative_link folder to name)
    file(RELATIVE_PATH target ${CMAKE_INSTALL_PREFIX}/${folder} ${CMAKE_INSTALL_PREFIX}/${to})
    set(link ${PROJECT_BINARY_DIR}/links/${name})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/links)
    file(CREATE_LINK ${target} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${folder} COMPONENT Panel)
endfunction()

# vna_install_configured(<file below desktop/, without .in> <folder>): with the names of this Qt's build.
set(VNA_DESKTOP_SUFFIX "")
set(VNA_MAN_SUFFIX "")
if(NOT VNA_SUFFIX STREQUAL "")
    set(VNA_DESKTOP_SUFFIX " (Qt ${VNAWIDGETS_QT_MAJOR})")
    string(TOUPPER "${VNA_SUFFIX}" VNA_MAN_SUFFIX)
endif()
function(vna_install_configured file folder)
    string(REGEX REPLACE "^([a-z]+)" "\\1${VNA_SUFFIX}" name ${file})
    configure_file(${PROJECT_SOURCE_DIR}/desktop/${file}.in ${PROJECT_BINARY_DIR}/desktop/${name} @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/desktop/${name} DESTINATION ${folder} COMPONENT Panel)
endfunction()

if(VNAWIDGETS_PANEL)
    vna_install_program(vnapanel)
    if(TARGET vnapanel-sound)
        install(TARGETS vnapanel-sound LIBRARY DESTINATION ${VNA_PROGRAM_DIR}/bin COMPONENT Panel)
    endif()
    vna_install_configured(vnapanel.1 ${CMAKE_INSTALL_MANDIR}/man1)
    vna_install_configured(vnapanel.desktop ${CMAKE_INSTALL_DATADIR}/applications)
    vna_install_configured(vnapanel.metainfo.xml ${CMAKE_INSTALL_DATADIR}/metainfo)
    install(FILES resources/svg/logo.svg RENAME vnapanel${VNA_SUFFIX}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT Panel)
endif()
if(VNAWIDGETS_EXAMPLES)
    vna_install_program(vnagallery)
    vna_install_configured(vnagallery.1 ${CMAKE_INSTALL_MANDIR}/man1)
endif()

if(VNAWIDGETS_DESIGNER)
    file(RELATIVE_PATH VNA_DESIGNER_TO_LIBRARIES ${CMAKE_INSTALL_PREFIX}/${VNAWIDGETS_DESIGNER_DIR} ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR})
    set_property(TARGET vnadesigner PROPERTY INSTALL_RPATH "$ORIGIN/${VNA_DESIGNER_TO_LIBRARIES}")
    install(TARGETS vnadesigner LIBRARY DESTINATION ${VNAWIDGETS_DESIGNER_DIR} COMPONENT Development)
endif()
