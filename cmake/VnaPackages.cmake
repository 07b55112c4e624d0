# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: LGPL-3.0-or-later

# The Debian packages, one for each component; script/package builds them. Debian's names for libraries: the soname
# with a hyphen where a digit would meet a digit.
block() # what is set here is for CPack alone
set(version ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
if(VNAWIDGETS_QT_MAJOR EQUAL 5)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvnawidgets${version})
    set(svg libqt5svg5)
    set(development "qtbase5-dev, libqcustomplot-dev")
else()
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvnawidgets${VNA_SUFFIX}-${version})
    set(svg libqt6svg6)
    set(development "qt6-base-dev, libqcustomplot-dev")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The VnaWidgets authors" CACHE STRING "Who is named as maintainer of the packages")
set(CPACK_PACKAGE_FILE_NAME ${VNA_PACKAGE}-${PROJECT_VERSION})
set(CPACK_COMPONENTS_ALL Runtime Development Panel)
set(CPACK_STRIP_FILES ON)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSES/LGPL-3.0-or-later.txt)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/platform)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(exact "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS ${svg}) # Qt's plugin draws the icons; nothing links it
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Widgets and a Smith chart for instrument panels, for Qt ${VNAWIDGETS_QT_MAJOR}
 The libraries and their style sheets.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvnawidgets${VNA_SUFFIX}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${exact}, ${development}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Development files of VnaWidgets for Qt ${VNAWIDGETS_QT_MAJOR}
 Headers, CMake and pkg-config files, icons, and the plugin for Qt Designer.")

set(CPACK_DEBIAN_PANEL_PACKAGE_NAME vnapanel${VNA_SUFFIX})
set(CPACK_DEBIAN_PANEL_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PANEL_PACKAGE_DEPENDS "${exact}, ${svg}, fonts-dejavu-core")
set(CPACK_DEBIAN_PANEL_PACKAGE_RECOMMENDS fonts-wqy-microhei) # for Chinese
set(CPACK_COMPONENT_PANEL_DESCRIPTION "Front panel of a vector network analyser, on Touchstone files
 The demonstration of VnaWidgets: vnapanel, and vnagallery with every widget.")
include(CPack)
endblock()
