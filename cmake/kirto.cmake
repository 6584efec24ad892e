# Compile flags of every target, and the functions that declare libraries, tests and harnesses.

find_package(Threads REQUIRED)

add_library(kirto_flags INTERFACE)
target_compile_options(kirto_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wimplicit-fallthrough -Werror)
target_compile_definitions(kirto_flags INTERFACE KIRTO_VERSION="${PROJECT_VERSION}")
target_include_directories(kirto_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(kirto_flags INTERFACE Threads::Threads)

if(KIRTO_SANITIZE)
    target_compile_options(kirto_flags INTERFACE
        -fsanitize=${KIRTO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
        # GCC sees uninitialised members of std::regex in instrumented code, where there are none.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(kirto_flags INTERFACE -fsanitize=${KIRTO_SANITIZE})
endif()
if(KIRTO_FUZZ)
    target_compile_options(kirto_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(KIRTO_COVERAGE)
    # Counters are shared by threads.
    target_compile_options(kirto_flags INTERFACE --coverage -fprofile-update=atomic -O0)
    target_link_options(kirto_flags INTERFACE --coverage)
endif()

# kirto_library(NAME SOURCES ... DEPENDS ...): one static library a folder of src/. DEPENDS names the
# layers it may include; the linker refuses what is not among them.
function(kirto_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC kirto_flags ${ARG_DEPENDS})
endfunction()

# kirto_test(NAME SOURCES ... DEPENDS ...): one GoogleTest program; each case is a CTest test.
function(kirto_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} kirto_test_support GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
