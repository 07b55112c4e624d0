# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a page links to a file that is not there, when a picture is shown nowhere, or when a public widget has
# no page.

cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE pages ${SOURCE_DIR}/docs/*.md)
list(APPEND pages ${SOURCE_DIR}/README.md)
set(linked "")
foreach(page IN LISTS pages)
    get_filename_component(folder ${page} DIRECTORY)
    file(READ ${page} text)
    string(REGEX REPLACE "```[^`]*```" "" text "${text}") # code has brackets of its own
    string(REPLACE "](" "@(" text "${text}") # brackets would join the elements of a list
    string(REGEX MATCHALL "@\\([^)#:]+\\)" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "^@\\((.*)\\)$" "\\1" target "${link}")
        get_filename_component(file ${target} ABSOLUTE BASE_DIR ${folder})
        if(NOT EXISTS ${file})
            message(SEND_ERROR "${page} links to ${target}, which does not exist")
        endif()
        list(APPEND linked ${file})
    endforeach()
endforeach()

file(GLOB pictures ${SOURCE_DIR}/docs/images/*)
foreach(picture IN LISTS pictures)
    if(NOT picture IN_LIST linked)
        message(SEND_ERROR "no page shows ${picture}")
    endif()
endforeach()

file(GLOB headers ${SOURCE_DIR}/src/widgets/*.h)
list(FILTER headers EXCLUDE REGEX "_p\\.h$")
foreach(header IN LISTS headers)
    get_filename_component(name ${header} NAME_WE)
    if(NOT ${SOURCE_DIR}/docs/widgets/${name}.md IN_LIST linked)
        message(SEND_ERROR "docs/widgets has no page for ${name}, or nothing links to it")
    endif()
endforeach()
