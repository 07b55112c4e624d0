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

# The README's program is the example, word for word.
file(READ ${SOURCE_DIR}/examples/smithchart-minimal/main.cpp example)
string(REGEX REPLACE "^(//[^\n]*\n)+" "" example "${example}")
file(READ ${SOURCE_DIR}/README.md readme)
string(FIND "${readme}" "```cpp\n${example}```" found)
if(found EQUAL -1)
    message(SEND_ERROR "the README's program is not examples/smithchart-minimal/main.cpp")
endif()

# The table of the newest benchmark entry stands on the performance page.
file(READ ${SOURCE_DIR}/benchmarks/log.md log)
string(REGEX MATCH "\n\\| work [^#]*\\| yes \\|\n\n" table "${log}")
file(READ ${SOURCE_DIR}/docs/guide/performance.md performance)
string(FIND "${performance}" "${table}" found)
if(found EQUAL -1 OR table STREQUAL "")
    message(SEND_ERROR "docs/guide/performance.md does not show the newest table of benchmarks/log.md")
endif()

# The theming page names every colour, object name and property that a style sheet or a settings file can use.
file(READ ${SOURCE_DIR}/docs/guide/theming.md theming)
file(GLOB_RECURSE sources ${SOURCE_DIR}/src/*.cpp ${SOURCE_DIR}/src/*.ui)
set(names "")
foreach(source IN LISTS sources)
    file(READ ${source} text)
    string(REGEX REPLACE "[][;]" " " text "${text}") # lists are none of this text's business
    foreach(before "<widget class=\"[A-Za-z0-9:]+\" name=" "ropert(y|ies)\\(" "QStringLiteral\\(" "readPalette\\(" "\\{")
        string(REGEX MATCHALL "${before}\"[A-Za-z0-9_/]+\"" hits "${text}")
        foreach(hit IN LISTS hits)
            string(REGEX REPLACE "^.*\"([^\"]+)\"$" "\\1" name "${hit}")
            # Of all that is quoted in the sources, what looks like a name of one of these kinds.
            if(before MATCHES "widget|ropert|readPalette" OR name MATCHES
                    "Color$|^(draggable|overlay|IconMode|ListMode|combobox)|^(name|value|btn)[A-Z]|^(Dark|Light)/")
                list(APPEND names ${name})
            endif()
        endforeach()
    endforeach()
endforeach()
list(FILTER names EXCLUDE REGEX "^[A-Z][A-Za-z]+(Widget|Item|Panel|Keyboard)$|^customizedLogo$") # forms
list(REMOVE_DUPLICATES names)
list(FILTER names EXCLUDE REGEX "^btn[1-8]$|^btnUnit[23]$") # written as a range
list(LENGTH names count)
if(count LESS 60)
    message(SEND_ERROR "only ${count} names of styles were found in the sources: ${names}")
endif()
foreach(name IN LISTS names)
    string(FIND "${theming}" "${name}" found)
    if(found EQUAL -1)
        message(SEND_ERROR "docs/guide/theming.md does not name ${name}")
    endif()
endforeach()
