# Compile flags of every target, and the function that declares libraries.

find_package(Threads REQUIRED)

add_library(kirto_flags INTERFACE)
target_compile_options(kirto_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wimplicit-fallthrough -Werror)
# GCC 12, optimising, sees overlapping copies in assignments of literals to strings, where there are none.
target_compile_options(kirto_flags INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:RelWithDebInfo>>:-Wno-restrict>)
target_compile_definitions(kirto_flags INTERFACE KIRTO_VERSION="${PROJECT_VERSION}")
target_include_directories(kirto_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(kirto_flags INTERFACE Threads::Threads)

# What optimised programs check of themselves: lengths that the compiler knows, indices of containers,
# the stack's bounds and return addresses. Addresses that the linker fills in are read-only afterwards.
# Libraries with the property HOT_LOOPS leave out what is checked while they run, which costs their
# loops a twelfth of their time; sanitizers and fuzzers watch them instead.
if(KIRTO_HARDEN AND NOT KIRTO_SANITIZE)
    set(kirto_optimised $<CONFIG:RelWithDebInfo>)
    set(kirto_watched $<AND:${kirto_optimised},$<NOT:$<BOOL:$<TARGET_PROPERTY:HOT_LOOPS>>>>)
    target_compile_options(kirto_flags INTERFACE
        $<${kirto_optimised}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>
        $<${kirto_watched}:-fstack-protector-strong;-fstack-clash-protection;-D_GLIBCXX_ASSERTIONS>)
    target_link_options(kirto_flags INTERFACE
        $<${kirto_optimised}:-pie;-Wl,-z,relro;-Wl,-z,now>)
endif()

if(KIRTO_SANITIZE)
    target_compile_options(kirto_flags INTERFACE
        -fsanitize=${KIRTO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    if(KIRTO_SANITIZE MATCHES "undefined")
        # A check a pointer takes long to compile and to run. What takes files apart keeps it.
        target_compile_options(kirto_flags INTERFACE
            $<$<NOT:$<BOOL:$<TARGET_PROPERTY:FOREIGN_BYTES>>>:-fno-sanitize=null,alignment,vptr>)
    endif()
    target_link_options(kirto_flags INTERFACE -fsanitize=${KIRTO_SANITIZE})
endif()
if(KIRTO_FUZZ)
    target_compile_options(kirto_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
# Presets that compile several sources at a time show GCC names of one file in front of another's, and
# a test's own types as if they came from a header.
target_compile_options(kirto_flags INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<BOOL:$<TARGET_PROPERTY:UNITY_BUILD>>>:-Wno-shadow;-Wno-subobject-linkage>)
if(KIRTO_COVERAGE)
    # Counters are shared by threads.
    target_compile_options(kirto_flags INTERFACE --coverage -fprofile-update=atomic -O0)
    target_link_options(kirto_flags INTERFACE --coverage)
endif()

# Linking many programs of much debug information is what lld is good at.
find_program(KIRTO_LLD ld.lld)
if(KIRTO_LLD AND KIRTO_TESTS)
    target_link_options(kirto_flags INTERFACE -fuse-ld=lld)
endif()

# What most files of the windows and their tests include of Qt, for precompiled headers.
set(kirto_qt_headers
    <QApplication>
    <QCheckBox>
    <QComboBox>
    <QDialog>
    <QGroupBox>
    <QImage>
    <QKeyEvent>
    <QLabel>
    <QLineEdit>
    <QListWidget>
    <QMimeData>
    <QMouseEvent>
    <QPainter>
    <QPointer>
    <QPushButton>
    <QRadioButton>
    <QScreen>
    <QSlider>
    <QSpinBox>
    <QTabWidget>
    <QTimer>
    <QVBoxLayout>)

# kirto_library(NAME SOURCES ... DEPENDS ... [FOREIGN_BYTES]): one static library a folder of src/.
# DEPENDS names the layers it may include; the linker refuses what is not among them. FOREIGN_BYTES is
# for those that take files apart. Presets with KIRTO_UNITY compile several sources at a time.
function(kirto_library name)
    cmake_parse_arguments(ARG "FOREIGN_BYTES" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC kirto_flags ${ARG_DEPENDS})
    # As quickly compiled as without it, and the tests that start whole programs take half the time.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Debug>:-Og>)
    set_target_properties(${name} PROPERTIES
        FOREIGN_BYTES ${ARG_FOREIGN_BYTES}
        UNITY_BUILD ${KIRTO_UNITY})
endfunction()
