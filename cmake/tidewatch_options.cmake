# The language standard, warnings, sanitizers and compiler cache that every target is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(tidewatch_options INTERFACE)
target_include_directories(tidewatch_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
# Our own signals have a member `emit`, which Qt would otherwise define as a macro.
target_compile_definitions(tidewatch_options INTERFACE QT_NO_KEYWORDS)
target_compile_options(tidewatch_options INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
    -Wimplicit-fallthrough -Wcast-align -Wconversion -Wsign-conversion
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:TIDEWATCH_MAY_SHADOW>>>:-Wshadow>)
# With optimisation g++ 12 falsely warns of overlapping copies in std::string's operator+, and of reads from an empty
# std::optional.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(tidewatch_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
if(TIDEWATCH_WERROR)
    target_compile_options(tidewatch_options INTERFACE -Werror)
endif()
# What is shipped: protected against faults in reading what others wrote, which costs next to nothing (with
# TIDEWATCH_FORTIFY, which needs optimisation), and without the paths of the machine that it was built on.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    add_compile_options(-fstack-protector-strong -fstack-clash-protection
        -ffile-prefix-map=${CMAKE_BINARY_DIR}=build -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
    add_link_options(LINKER:-z,relro,-z,now,-z,pack-relative-relocs LINKER:--as-needed)
    set(TIDEWATCH_FORTIFY -D_FORTIFY_SOURCE=2)
endif()
if(TIDEWATCH_SANITIZE)
    add_compile_options(-fsanitize=${TIDEWATCH_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TIDEWATCH_SANITIZE})
endif()

# tidewatch_unity(<target>...)
#
# Makes the target a unity build if TIDEWATCH_UNITY is on: most of the compile time is spent on headers, once per batch
# instead of once per file. Off for daily work, so that a change recompiles one file.
function(tidewatch_unity)
    if(TIDEWATCH_UNITY)
        foreach(target ${ARGN})
            set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 32)
        endforeach()
    endif()
endfunction()
