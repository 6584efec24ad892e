# The functions that declare test programs, and what these programs are compiled with.

# Test code is compiled without optimisation also where a preset optimises the sources, as that is
# quick. All of it is position-independent as Qt wants it, so that programs with and without Qt share
# one precompiled header.
add_library(kirto_test_flags INTERFACE)
target_compile_options(kirto_test_flags INTERFACE -fPIC)
if(KIRTO_SANITIZE)
    target_compile_options(kirto_test_flags INTERFACE -O0)
endif()

# The standard library and GoogleTest, for all test programs; nothing of our own, which changes.
set(kirto_test_headers
    <algorithm>
    <array>
    <atomic>
    <condition_variable>
    <cstdio>
    <cstdlib>
    <cstring>
    <filesystem>
    <fstream>
    <functional>
    <limits>
    <map>
    <memory>
    <mutex>
    <optional>
    <random>
    <set>
    <span>
    <sstream>
    <string>
    <string_view>
    <thread>
    <utility>
    <vector>
    <gmock/gmock.h>
    <gtest/gtest.h>)

# What the tests need of the build. `cmake --build ... --target test_programs` makes no more than that.
add_custom_target(test_programs)
add_dependencies(test_programs kirto_rsrc_file)

# kirto_test_program(TARGET [TEST...]): a program whose tests `./dev test changed` runs when a folder
# has changed that the target is made of. Folders that sanitized builds leave out set KIRTO_UNSANITIZED.
function(kirto_test_program target)
    add_dependencies(test_programs ${target})
    set_property(GLOBAL APPEND PROPERTY KIRTO_TEST_PROGRAMS ${target})
    if(KIRTO_UNSANITIZED)
        set_property(GLOBAL APPEND PROPERTY KIRTO_UNSANITIZED_PROGRAMS ${target})
    endif()
    if(ARGN)
        set_property(TEST ${ARGN} APPEND PROPERTY LABELS ${target})
    endif()
endfunction()

# kirto_test(NAME SOURCES ... DEPENDS ... [SHARDS n] [EACH] [QT_HEADERS] [THREADED ...]): one
# GoogleTest program. CTest starts it once, not once a case; a program whose cases take long is started
# SHARDS times, each time for another part of them, side by side. With EACH every case is a test of
# CTest, which then tells which of them were skipped. QT_HEADERS is for programs with many files that
# include widgets. THREADED names the sources that ThreadSanitizer has something to see in, or is ALL; in
# its build the other sources are left out, and so are programs without any.
function(kirto_test name)
    cmake_parse_arguments(ARG "EACH;QT_HEADERS" "SHARDS" "SOURCES;DEPENDS;THREADED" ${ARGN})
    if(KIRTO_SANITIZE MATCHES "thread" AND NOT ARG_THREADED STREQUAL "ALL")
        set(ARG_SOURCES ${ARG_THREADED})
    endif()
    if(NOT ARG_SOURCES)
        return()
    endif()
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES UNITY_BUILD ${KIRTO_UNITY})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE
        ${ARG_DEPENDS} kirto_test_support kirto_test_flags GTest::gmock GTest::gtest_main)
    if(ARG_QT_HEADERS)
        target_precompile_headers(${name} PRIVATE ${kirto_test_headers} ${kirto_qt_headers})
    else()
        target_precompile_headers(${name} REUSE_FROM kirto_test_support)
    endif()

    if(ARG_EACH)
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
            PROPERTIES TIMEOUT 300 LABELS ${name})
        kirto_test_program(${name})
        return()
    endif()
    if(NOT ARG_SHARDS)
        set(ARG_SHARDS 1)
    endif()
    math(EXPR last "${ARG_SHARDS} - 1")
    foreach(shard RANGE ${last})
        set(test ${name})
        if(ARG_SHARDS GREATER 1)
            math(EXPR number "${shard} + 1")
            string(APPEND test ".${number}of${ARG_SHARDS}")
        endif()
        add_test(NAME ${test} COMMAND ${name})
        set_tests_properties(${test} PROPERTIES
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${ARG_SHARDS};GTEST_SHARD_INDEX=${shard}"
            TIMEOUT 600)
        list(APPEND tests ${test})
    endforeach()
    kirto_test_program(${name} ${tests})
endfunction()

# Collects the folders of the project that a target is made of, itself included. What the helpers of
# the tests stand on is not among them: it is not what the tests look at.
function(kirto_collect_folders target result)
    get_target_property(folder ${target} SOURCE_DIR)
    set(folders ${${result}} ${folder})
    set(below)
    if(NOT target STREQUAL "kirto_test_support")
        foreach(property LINK_LIBRARIES INTERFACE_LINK_LIBRARIES MANUALLY_ADDED_DEPENDENCIES)
            get_target_property(named ${target} ${property})
            list(APPEND below ${named})
        endforeach()
    endif()
    list(TRANSFORM below REPLACE "^\\$<LINK_ONLY:(.*)>$" "\\1")
    list(REMOVE_DUPLICATES below)
    foreach(other ${below})
        if(TARGET ${other} AND NOT other STREQUAL target)
            get_target_property(imported ${other} IMPORTED)
            if(NOT imported)
                kirto_collect_folders(${other} folders)
            endif()
        endif()
    endforeach()
    # Sources of the rooms in the folder, and of other folders.
    get_target_property(sources ${target} SOURCES)
    foreach(source ${sources})
        if(source MATCHES "/")
            get_filename_component(source ${folder}/${source} ABSOLUTE)
            get_filename_component(source ${source} DIRECTORY)
            list(APPEND folders ${source})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES folders)
    set(${result} ${folders} PARENT_SCOPE)
endfunction()

# Writes two lists into the build folder: test_programs.txt has a line a test program, its target and the
# folders that it is made of; unsanitized_programs.txt the targets of those that only this build has.
function(kirto_write_test_programs)
    get_property(programs GLOBAL PROPERTY KIRTO_TEST_PROGRAMS)
    set(text "")
    foreach(program ${programs})
        set(folders)
        kirto_collect_folders(${program} folders)
        list(TRANSFORM folders REPLACE "^${PROJECT_SOURCE_DIR}/?" "")
        list(REMOVE_ITEM folders "")
        list(JOIN folders " " line)
        string(APPEND text "${program} ${line}\n")
    endforeach()
    file(WRITE ${PROJECT_BINARY_DIR}/test_programs.txt "${text}")
    get_property(unsanitized GLOBAL PROPERTY KIRTO_UNSANITIZED_PROGRAMS)
    list(JOIN unsanitized "\n" text)
    file(WRITE ${PROJECT_BINARY_DIR}/unsanitized_programs.txt "${text}\n")
endfunction()
