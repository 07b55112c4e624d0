# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a text of the sources is not in the catalogues, cannot be found by lupdate, is not translated, or when a
# translation has lost a placeholder or the "…" that announces a dialog.

cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${CATALOGUES})
file(GLOB originals ${SOURCES}/translations/*.ts)
file(COPY ${originals} DESTINATION ${CATALOGUES})
include(${SOURCES}/translations/update.cmake)

file(GLOB copies ${CATALOGUES}/*.ts)
foreach(copy IN LISTS copies)
    get_filename_component(name ${copy} NAME)
    file(READ ${copy} text)
    string(REGEX REPLACE "[][;]" " " text "${text}") # they would join or split the elements of a list
    string(REPLACE "<message" ";<message" messages "${text}")
    foreach(message IN LISTS messages)
        if(NOT message MATCHES "<source>(.*)</source>")
            continue()
        endif()
        set(source "${CMAKE_MATCH_1}")
        string(REGEX MATCH "<translation[^>]*>(.*)</translation>" whole "${message}")
        set(forms "${CMAKE_MATCH_1}")
        if(message MATCHES "<numerusform>")
            string(REGEX MATCHALL "<numerusform>[^<]*" forms "${forms}")
        endif()
        if(whole MATCHES "type=\"" OR "${forms}" STREQUAL "" OR forms MATCHES "<numerusform>(;|$)")
            message(SEND_ERROR "${name}: \"${source}\" is not translated")
            continue()
        endif()
        foreach(form IN LISTS forms)
            foreach(part %1 %2 %3 %4 %n …)
                string(FIND "${source}" ${part} wanted)
                string(FIND "${form}" ${part} found)
                if((wanted LESS 0) EQUAL (found LESS 0))
                    continue()
                endif()
                message(SEND_ERROR "${name}: \"${source}\" and its translation differ in ${part}")
            endforeach()
        endforeach()
    endforeach()
endforeach()
