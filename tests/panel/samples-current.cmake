# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake -DGENERATOR=<program> -DSAMPLES=<folder> -DWORK=<folder> -P samples-current.cmake
# Fails when the generator writes other files than those in the samples folder.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${GENERATOR} ${WORK} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB written RELATIVE ${WORK} ${WORK}/*)
file(GLOB shipped RELATIVE ${SAMPLES} ${SAMPLES}/*.s1p ${SAMPLES}/*.s2p)
if(NOT written STREQUAL shipped)
    message(FATAL_ERROR "samples/ holds ${shipped}, but the generator writes ${written}")
endif()
foreach(name IN LISTS written)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${name} ${SAMPLES}/${name}
                    RESULT_VARIABLE differs)
    if(differs)
        message(FATAL_ERROR "samples/${name} is not what the generator writes: run vnapanel-samples samples")
    endif()
endforeach()
