# SPDX-FileCopyrightText: 2026 The VnaWidgets authors
# SPDX-License-Identifier: LGPL-3.0-or-later

find_package(Qt${VNAWIDGETS_QT_MAJOR} REQUIRED COMPONENTS Test)

# Qt wants a runtime folder that only the user can enter, and warns without one.
set(VNA_TEST_RUNTIME_DIR ${PROJECT_BINARY_DIR}/runtime)
file(MAKE_DIRECTORY ${VNA_TEST_RUNTIME_DIR})
file(CHMOD ${VNA_TEST_RUNTIME_DIR} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

set(VNA_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen"
    "QT_HASH_SEED=0"
    "LC_ALL=C.UTF-8"
    "XDG_RUNTIME_DIR=${VNA_TEST_RUNTIME_DIR}"
    "QTEST_FUNCTION_TIMEOUT=240000"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/shared/lsan.supp:print_suppressions=0"
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/shared/tsan.supp"
    "UBSAN_OPTIONS=print_stacktrace=1")

# What every test program runs in: no display, the same hash order and locale everywhere. Tests that take longer than 20 s
# have a COST, by which they start first, so that no processor waits for the last one.
function(vna_set_test_environment name)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT "${VNA_TEST_ENVIRONMENT}")
endfunction()

# vna_add_test(<name> <sources...> [LIBRARIES <targets...>]): one test program of one file.
# Programs land in <build>/tests, so that "../configuration" is found beside them.
function(vna_add_test name)
    cmake_parse_arguments(ARG "" "" "LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE
        vna_build_flags vna_test_support VnaWidgets::Widgets Qt${VNAWIDGETS_QT_MAJOR}::Test ${ARG_LIBRARIES})
    target_precompile_headers(${name} REUSE_FROM vna_test_headers)
    # Sources of the project in a test are read as everywhere, by clang-tidy too.
    set(others ${ARG_UNPARSED_ARGUMENTS})
    list(FILTER others INCLUDE REGEX "^${PROJECT_SOURCE_DIR}/.*\\.cpp$")
    if(others)
        set_source_files_properties(${others} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    vna_set_test_environment(${name})
endfunction()
