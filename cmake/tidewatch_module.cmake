# tidewatch_module(<room> SOURCES <file>... [KNOWS <target>...])
#
# One room (see docs/architecture.md) as a static library `tidewatch_<room>`. KNOWS names the rooms and libraries that
# its headers and sources may include; targets that link the room inherit them.
function(tidewatch_module room)
    cmake_parse_arguments(ARG "" "" "SOURCES;KNOWS" ${ARGN})
    add_library(tidewatch_${room} STATIC ${ARG_SOURCES})
    target_link_libraries(tidewatch_${room} PUBLIC ${ARG_KNOWS} PRIVATE tidewatch_options)
    target_include_directories(tidewatch_${room} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    tidewatch_unity(tidewatch_${room})
endfunction()

# tidewatch_test(<name> [THREADS] SOURCES <file>... [APART <file>...] [KNOWS <target>...])
#
# One test program on GoogleTest, registered case by case, with locale, time zone and home pinned. THREADS says
# that its tests use more than one thread: only those are built under the thread sanitizer, which finds nothing in
# others. APART are sources that are never compiled together with others, for they use the same names in their own way.
function(tidewatch_test name)
    cmake_parse_arguments(ARG "THREADS" "" "SOURCES;APART;KNOWS" ${ARGN})
    if(TIDEWATCH_SANITIZE MATCHES thread AND NOT ARG_THREADS)
        return()
    endif()
    add_executable(${name} ${ARG_SOURCES} ${ARG_APART})
    target_link_libraries(${name} PRIVATE ${ARG_KNOWS} tidewatch_options GTest::gmock_main)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
    tidewatch_unity(${name})
    set_source_files_properties(${ARG_APART} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    # What is under test is built as it ships; the tests around it need not be fast, only soon built. The checks
    # left out below cost a third of a test's build and find next to nothing that the others do not.
    target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-O0>)
    # Compiled together, a name of one test may hide that of another, which is of no concern to either.
    set_target_properties(${name} PROPERTIES TIDEWATCH_MAY_SHADOW ${TIDEWATCH_UNITY})
    if(TIDEWATCH_SANITIZE MATCHES undefined)
        target_compile_options(${name} PRIVATE -fno-sanitize=null,alignment,vptr)
    endif()
    # Each test process starts through `env`: a list of variables does not survive the way through discovery.
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
        "${CMAKE_COMMAND};-E;env;LC_ALL=C.UTF-8;TZ=UTC;HOME=${CMAKE_BINARY_DIR}/test-home;QT_QPA_PLATFORM=offscreen")
    # Neither limit is there to judge anything: it ends what hangs, on however slow a machine.
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 600 PROPERTIES TIMEOUT 1800)
endfunction()
