# The headers that many sources include are precompiled in a unity build, one set for each kind of target. A source that
# does not include what it uses fails without a unity build, in daily work.

# _tidewatch_header_set(<set> [LINKS <library>...] [MODULES <Qt module>...] [OPTIONS <option>...])
#
# Precompiles cmake/headers/<set>.h with these libraries, folders and options. Of MODULES only the folders are used: the
# compiler does not accept the headers in a target that lacks one of the definitions that they were compiled with.
function(_tidewatch_header_set set)
    cmake_parse_arguments(ARG "" "" "LINKS;MODULES;OPTIONS" ${ARGN})
    set(target tidewatch_${set}_headers)
    set(source ${CMAKE_BINARY_DIR}/headers/${set}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(${target} OBJECT EXCLUDE_FROM_ALL ${source})
    target_link_libraries(${target} PRIVATE tidewatch_options ${ARG_LINKS})
    foreach(module ${ARG_MODULES})
        if(TARGET Qt6::${module})
            target_include_directories(${target} SYSTEM PRIVATE
                $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
        endif()
    endforeach()
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake)
    target_compile_options(${target} PRIVATE ${ARG_OPTIONS})
    target_precompile_headers(${target} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/headers/${set}.h)
endfunction()

# tidewatch_headers(<set> <target>...)
#
# Compiles the targets with the options of the set: `domain`, `toolkit`, `tests` or `toolkit_tests`. In a unity build
# the set's headers are precompiled.
function(tidewatch_headers set)
    foreach(target ${ARGN})
        target_link_libraries(${target} PRIVATE tidewatch_options)
        target_compile_options(${target} PRIVATE ${TIDEWATCH_${set}_OPTIONS})
        if(TARGET tidewatch_${set}_headers)
            target_precompile_headers(${target} REUSE_FROM tidewatch_${set}_headers)
        endif()
    endforeach()
endfunction()

# Targets that use the toolkit call it more than they compute, so that an optimised build optimises them less. The tests
# need not be fast, but should build quickly.
set(TIDEWATCH_domain_OPTIONS ${TIDEWATCH_FORTIFY})
set(TIDEWATCH_toolkit_OPTIONS $<$<CONFIG:Release>:-O1> ${TIDEWATCH_FORTIFY})
set(TIDEWATCH_tests_OPTIONS -O0)
# Checks that cost a third of the compile time and find hardly anything; the address sanitizer reports a null pointer too.
if(TIDEWATCH_SANITIZE MATCHES undefined)
    list(APPEND TIDEWATCH_toolkit_OPTIONS -fno-sanitize=null,alignment)
    list(APPEND TIDEWATCH_tests_OPTIONS -fno-sanitize=null,alignment,vptr)
endif()
set(TIDEWATCH_toolkit_tests_OPTIONS ${TIDEWATCH_tests_OPTIONS})

if(TIDEWATCH_UNITY)
    find_package(fmt REQUIRED)
    _tidewatch_header_set(domain LINKS fmt::fmt OPTIONS ${TIDEWATCH_domain_OPTIONS})
    if(TIDEWATCH_TESTS)
        find_package(GTest REQUIRED)
        _tidewatch_header_set(tests LINKS GTest::gmock OPTIONS ${TIDEWATCH_tests_OPTIONS})
    endif()
    if(TIDEWATCH_DESKTOP)
        set(modules Gui OpenGL Qml QmlIntegration QmlModels Network Quick)
        find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui OpenGL Qml Quick)
        _tidewatch_header_set(toolkit LINKS Qt6::Core MODULES ${modules} OPTIONS ${TIDEWATCH_toolkit_OPTIONS})
        if(TIDEWATCH_TESTS)
            _tidewatch_header_set(toolkit_tests LINKS Qt6::Core GTest::gmock MODULES ${modules}
                OPTIONS ${TIDEWATCH_toolkit_tests_OPTIONS})
        endif()
    endif()
endif()
