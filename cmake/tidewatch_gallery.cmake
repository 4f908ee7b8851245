include(tidewatch_fonts)

# tidewatch_gallery(<name> SOURCES <file>... KNOWS <target>...)
#
# A program that paints what scenes show in every theme and state into a folder of pictures, for looking at them. Its
# source defines paint() of tests/ui/gallery.h.
function(tidewatch_gallery name)
    cmake_parse_arguments(ARG "" "" "SOURCES;KNOWS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES} ${CMAKE_SOURCE_DIR}/tests/ui/gallery.cpp
        ${CMAKE_SOURCE_DIR}/tests/ui/gallery_main.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_KNOWS} tidewatch_options)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_SOURCE_DIR}/tests)
    tidewatch_fonts(${name})
endfunction()
