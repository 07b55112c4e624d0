# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: LGPL-3.0-or-later

# What every target of this project is built with.
add_library(vna_build_flags INTERFACE)
target_compile_definitions(vna_build_flags INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_compile_options(vna_build_flags INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wsuggest-override
    $<$<BOOL:${VNAWIDGETS_DEVELOPER}>:-Werror>)
if(CMAKE_UNITY_BUILD)
    # Sources that are compiled together are included by another, but are no headers; and where so much is inlined,
    # GCC 12 takes Qt 5's growing vectors for overflows.
    target_compile_options(vna_build_flags INTERFACE -Wno-subobject-linkage -Wno-stringop-overflow)
endif()
if(VNAWIDGETS_SANITIZE)
    target_compile_options(vna_build_flags INTERFACE
        -fsanitize=${VNAWIDGETS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(vna_build_flags INTERFACE -fsanitize=${VNAWIDGETS_SANITIZE})
    if(VNAWIDGETS_SANITIZE MATCHES thread)
        # Between the calls that it puts in, GCC 12 no longer sees that a loop has filled what it fills.
        target_compile_options(vna_build_flags INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

# What two packages beside each other are told apart by: nothing for Qt 5, the version for any other.
set(VNA_SUFFIX "")
set(VNA_PACKAGE VnaWidgets)
if(NOT VNAWIDGETS_QT_MAJOR EQUAL 5)
    set(VNA_SUFFIX -qt${VNAWIDGETS_QT_MAJOR})
    set(VNA_PACKAGE VnaWidgetsQt${VNAWIDGETS_QT_MAJOR})
endif()

# vna_shared_library(<target> <export name>): hidden symbols, a soname and nothing left undefined.
function(vna_shared_library target export_name)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vna_build_flags>)
    set_property(TARGET ${target} APPEND PROPERTY AUTOGEN_TARGET_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt)
    # Until version 1.0 each minor version may change the binary interface, and the soname says so.
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${target}${VNA_SUFFIX}
        EXPORT_NAME ${export_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    if(NOT VNAWIDGETS_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    add_library(VnaWidgets::${export_name} ALIAS ${target})
endfunction()

# vna_forwarding_headers(<target> <folder> <classes...>): <VnaWidgets/SmithChartPlot> for a class whose header is
# named after it.
function(vna_forwarding_headers target folder)
    foreach(class IN LISTS ARGN)
        string(TOLOWER ${class} header)
        set(forwarder ${PROJECT_BINARY_DIR}/include/VnaWidgets/${class})
        file(CONFIGURE OUTPUT ${forwarder} CONTENT "#include <${folder}/${header}.h> // IWYU pragma: export\n")
        target_sources(${target} PUBLIC FILE_SET generated_headers FILES ${forwarder})
    endforeach()
endfunction()
