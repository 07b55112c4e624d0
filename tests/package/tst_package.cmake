# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs BUILD_DIR, and beside it the build for the other Qt where OTHER_BUILD_DIR has one; moves the prefix;
# builds and runs somebody else's project against it, through CMake and through pkg-config; looks for each
# file in the lists of Debian's packages.

cmake_minimum_required(VERSION 3.25)
set(work ${BUILD_DIR}/package-test)
file(REMOVE_RECURSE ${work})
file(MAKE_DIRECTORY ${work})

# run(<command...>): fails the test with all that the command said.
function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        string(JOIN " " command ${ARGV})
        message(FATAL_ERROR "${command}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Fails on a file in both lists, which two packages would fight for.
function(expect_disjoint first second)
    foreach(file IN LISTS first)
        if(file IN_LIST second)
            message(SEND_ERROR "${file} is installed twice")
        endif()
    endforeach()
endfunction()

function(consume package module headers)
    set(build ${work}/consumer-${package})
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    run(${CMAKE_COMMAND} -G Ninja -S ${SOURCE_DIR}/tests/package/consumer -B ${build} -D CMAKE_PREFIX_PATH=${prefix}
        -D CMAKE_CXX_FLAGS=${CXX_FLAGS}
        -D PACKAGE=${package} -D MODULE=${module} -D HEADERS=${headers}
        -D EXAMPLE=${SOURCE_DIR}/examples/smithchart-minimal/main.cpp)
    run(${CMAKE_COMMAND} --build ${build})
    foreach(program chart chart-pkgconfig)
        run(${CMAKE_COMMAND} -E env GRAB=${work}/${package}-${program}.png ${build}/${program})
    endforeach()
endfunction()

# 1. Install.
set(prefix ${work}/first)
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
file(STRINGS ${BUILD_DIR}/install_manifest.txt mine)
list(TRANSFORM mine REPLACE "^${prefix}/" "")
if(mine MATCHES "_p\\.h|configuration/settings|\\.cpp")
    message(SEND_ERROR "private files are installed: ${mine}")
endif()
set(theirs "")
if(OTHER_BUILD_DIR AND EXISTS ${OTHER_BUILD_DIR}/src/libvnawidgets.so)
    run(${CMAKE_COMMAND} --install ${OTHER_BUILD_DIR} --prefix ${prefix})
    file(STRINGS ${OTHER_BUILD_DIR}/install_manifest.txt theirs)
    list(TRANSFORM theirs REPLACE "^${prefix}/" "")
    expect_disjoint("${mine}" "${theirs}")
endif()
file(RENAME ${prefix} ${work}/moved)
set(prefix ${work}/moved)

# 2. The programs find their libraries and style sheets, wherever the prefix is.
foreach(program IN LISTS PROGRAMS)
    run(${prefix}/bin/${program} --help)
endforeach()
if(PROGRAMS AND NOT EXISTS ${prefix}/${PROGRAM_DIR}/configuration/theme-base.css)
    message(SEND_ERROR "no style sheets beside the programs' folder")
endif()

# 3. Use.
consume(${PACKAGE} ${MODULE} ON)
if(theirs)
    consume(VnaWidgets vnawidgets OFF)
endif()

# The guide's way with pkg-config, as it stands there.
file(READ ${SOURCE_DIR}/docs/guide/getting-started.md guide)
string(REGEX MATCH "\nc\\+\\+ -std=c\\+\\+17[^`]*" command "${guide}")
string(REPLACE "vnawidgets" "${MODULE}" command "${command}")
string(REPLACE "main.cpp" "${CXX_FLAGS} main.cpp grab.cpp" command "${command}")
file(MAKE_DIRECTORY ${work}/guide)
configure_file(${SOURCE_DIR}/examples/smithchart-minimal/main.cpp ${work}/guide/main.cpp COPYONLY)
configure_file(${SOURCE_DIR}/tests/package/consumer/grab.cpp ${work}/guide/grab.cpp COPYONLY)
file(WRITE ${work}/guide/build.sh "cd ${work}/guide && ${command}")
run(sh -e ${work}/guide/build.sh)
run(${CMAKE_COMMAND} -E env GRAB=${work}/guide.png ${work}/guide/mypanel)

# 4. Debian's packages: each installed file goes into exactly one. script/package builds them.
file(GLOB lists ${SOURCE_DIR}/debian/*.install)
set(packed "")
foreach(file IN LISTS mine theirs)
    string(REGEX REPLACE "^usr/${LIBDIR}/" "usr/lib/any/" path "usr/${file}")
    set(takers "")
    foreach(list IN LISTS lists)
        file(STRINGS ${list} patterns)
        foreach(pattern IN LISTS patterns)
            string(REPLACE "." "\\." regex "${pattern}")
            string(REPLACE "*" "[^/]*" regex "${regex}")
            if(path MATCHES "^${regex}(/|$)")
                list(APPEND takers ${list})
                list(APPEND packed ${pattern})
            endif()
        endforeach()
    endforeach()
    list(LENGTH takers count)
    if(NOT count EQUAL 1)
        message(SEND_ERROR "${count} Debian packages take ${path}: ${takers}")
    endif()
endforeach()
if(theirs)
    foreach(list IN LISTS lists)
        file(STRINGS ${list} patterns)
        foreach(pattern IN LISTS patterns)
            if(NOT pattern IN_LIST packed)
                message(SEND_ERROR "${list}: nothing is installed as ${pattern}")
            endif()
        endforeach()
    endforeach()
endif()
