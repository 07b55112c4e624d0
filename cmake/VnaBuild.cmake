# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later

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
if(VNAWIDGETS_SANITIZE)
    target_compile_options(vna_build_flags INTERFACE
        -fsanitize=${VNAWIDGETS_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(vna_build_flags INTERFACE -fsanitize=${VNAWIDGETS_SANITIZE})
endif()

# vna_shared_library(<target> <export name>): hidden symbols, a soname and nothing left undefined.
function(vna_shared_library target export_name)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vna_build_flags>)
    set(output ${target})
    if(NOT VNAWIDGETS_QT_MAJOR EQUAL 5)
        set(output ${target}-qt${VNAWIDGETS_QT_MAJOR})
    endif()
    set_property(TARGET ${target} APPEND PROPERTY AUTOGEN_TARGET_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/CMakeLists.txt)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${output}
        EXPORT_NAME ${export_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(NOT VNAWIDGETS_SANITIZE)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    add_library(VnaWidgets::${export_name} ALIAS ${target})
endfunction()
