# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a file is under another licence than its folder: hosts build on the library under the LGPL, and copy from
# examples under 0BSD, so nothing under the GPL may get in there.

cmake_minimum_required(VERSION 3.25)

set(count 0)
# check_folder(<licence> <folders...>): all their sources name the licence in their first lines.
function(check_folder licence)
    foreach(folder IN LISTS ARGN)
        foreach(pattern cpp h txt cmake in css qss sh)
            file(GLOB_RECURSE found ${SOURCE_DIR}/${folder}/*.${pattern})
            foreach(file IN LISTS found)
                if(file MATCHES "/corpus/|cmake/vnawidgets\\.pc\\.in$")
                    continue()
                endif()
                file(READ ${file} head LIMIT 200)
                string(FIND "${head}" "License-Identifier: ${licence}\n" at)
                if(at EQUAL -1)
                    message(SEND_ERROR "${file} is not under ${licence}")
                endif()
                math(EXPR count "${count} + 1")
            endforeach()
        endforeach()
    endforeach()
    set(count ${count} PARENT_SCOPE)
endfunction()

check_folder(LGPL-3.0-or-later src platform designer configuration resources cmake)
check_folder(0BSD examples)
check_folder(GPL-3.0-or-later panel tests fuzz benchmarks)
if(count LESS 400)
    message(SEND_ERROR "only ${count} files were looked at")
endif()
if(REUSE)
    execute_process(COMMAND ${REUSE} --root ${SOURCE_DIR} lint OUTPUT_VARIABLE output RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "reuse lint:\n${output}")
    endif()
endif()
