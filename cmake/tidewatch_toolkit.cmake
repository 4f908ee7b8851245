# What the rooms that use the toolkit have in common: where they spend their time, and how to compile them quickly.

if(TIDEWATCH_DESKTOP AND TIDEWATCH_UNITY)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui OpenGL Qml Quick)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/toolkit_headers.cpp CONTENT "")
    add_library(tidewatch_toolkit_headers OBJECT ${CMAKE_BINARY_DIR}/toolkit_headers.cpp)
    target_link_libraries(tidewatch_toolkit_headers PRIVATE tidewatch_options Qt6::Core)
    # Only the folders of the other modules: the headers are invalid wherever one of their definitions is missing.
    foreach(module Gui OpenGL Qml QmlIntegration QmlModels Network Quick)
        if(TARGET Qt6::${module})
            target_include_directories(tidewatch_toolkit_headers SYSTEM PRIVATE
                $<TARGET_PROPERTY:Qt6::${module},INTERFACE_INCLUDE_DIRECTORIES>)
        endif()
    endforeach()
    target_precompile_headers(tidewatch_toolkit_headers PRIVATE ${CMAKE_CURRENT_LIST_DIR}/toolkit_headers.h)
    target_compile_options(tidewatch_toolkit_headers PRIVATE $<$<CONFIG:Release>:-O1>)
endif()

# tidewatch_toolkit(<target>...)
#
# Marks targets whose sources use the toolkit. They call it more than they compute, so that an optimised build optimises
# them less, and a unity build precompiles the toolkit's headers: together that halves their compile time. A source that
# does not include what it uses fails without a unity build, in daily work.
function(tidewatch_toolkit)
    foreach(target ${ARGN})
        target_link_libraries(${target} PRIVATE tidewatch_options)
        target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
        if(TARGET tidewatch_toolkit_headers)
            target_precompile_headers(${target} REUSE_FROM tidewatch_toolkit_headers)
        endif()
    endforeach()
endfunction()
