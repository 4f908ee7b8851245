# tidewatch_module(<room> [QT] SOURCES <file>... [KNOWS <target>...])
#
# One room (see docs/architecture.md) as a static library `tidewatch_<room>`. KNOWS names the rooms and libraries that
# its headers and sources may include; targets that link the room inherit them. QT marks a room that uses the toolkit.
function(tidewatch_module room)
    cmake_parse_arguments(ARG "QT" "" "SOURCES;KNOWS" ${ARGN})
    add_library(tidewatch_${room} STATIC ${ARG_SOURCES})
    target_link_libraries(tidewatch_${room} PUBLIC ${ARG_KNOWS})
    target_include_directories(tidewatch_${room} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    tidewatch_unity(tidewatch_${room})
    if(ARG_QT)
        tidewatch_headers(toolkit tidewatch_${room})
    else()
        tidewatch_headers(domain tidewatch_${room})
    endif()
    set_property(GLOBAL APPEND PROPERTY TIDEWATCH_ROOMS tidewatch_${room})
endfunction()

# tidewatch_test(<name> [THREADS] [QT] [NOT_SANITIZED] SOURCES <file>... [APART <file>...] [KNOWS <target>...]
#     [DEFINITIONS <definition>...])
#
# A GoogleTest program with locale, time zone and home fixed, registered case by case, or as a whole under a sanitizer.
# THREADS marks tests that use more than one thread: only those are built under the thread sanitizer. QT marks tests
# that need Qt, whose own leaks are nobody's business here. NOT_SANITIZED marks tests that prove nothing under a
# sanitizer: only those are built in the preset release. APART lists sources that are excluded from unity builds because
# their names clash with others'.
function(tidewatch_test name)
    cmake_parse_arguments(ARG "THREADS;QT;NOT_SANITIZED" "" "SOURCES;APART;KNOWS;DEFINITIONS" ${ARGN})
    if(TIDEWATCH_SANITIZE MATCHES thread AND NOT ARG_THREADS)
        return()
    endif()
    if(NOT TIDEWATCH_SANITIZABLE_TESTS AND NOT ARG_NOT_SANITIZED)
        return()
    endif()
    add_executable(${name} ${ARG_SOURCES} ${ARG_APART})
    target_link_libraries(${name} PRIVATE ${ARG_KNOWS} GTest::gmock_main)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
    tidewatch_unity(${name})
    set_source_files_properties(${ARG_APART} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    if(ARG_QT)
        tidewatch_headers(toolkit_tests ${name})
    else()
        tidewatch_headers(tests ${name})
    endif()
    # In a unity build a name of one test may shadow that of another, which is harmless.
    set_target_properties(${name} PROPERTIES TIDEWATCH_MAY_SHADOW ${TIDEWATCH_UNITY})
    # Test processes start through `env`: test discovery does not preserve a list of variables.
    set(variables LC_ALL=C.UTF-8 TZ=UTC HOME=${CMAKE_BINARY_DIR}/test-home QT_QPA_PLATFORM=offscreen)
    if(ARG_QT)
        list(APPEND variables ASAN_OPTIONS=detect_leaks=0)
    endif()
    if(TIDEWATCH_SANITIZE)
        # A sanitized process takes longer to start than most cases to run.
        add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -E env ${variables} $<TARGET_FILE:${name}> --gtest_brief=1)
        set_tests_properties(${name} PROPERTIES TIMEOUT 3600 FAIL_REGULAR_EXPRESSION "  SKIPPED  ]")
        return()
    endif()
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR "${CMAKE_COMMAND};-E;env;${variables}")
    # Neither timeout checks performance: they end tests that hang, even on a very slow machine.
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 600 PROPERTIES TIMEOUT 1800)
endfunction()
