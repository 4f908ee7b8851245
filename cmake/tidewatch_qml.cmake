find_package(Qt6 6.4 REQUIRED COMPONENTS Gui Qml Quick)

# tidewatch_qml_module(<room> <uri> SOURCES <file>... [VIEWS <file.qml>...] [IMPORTS <uri>...] [KNOWS <target>...])
#
# A room with a QML module of that uri: its types are declared in the headers among SOURCES; its VIEWS are compiled
# to byte code. Both may be in sub-folders; to QML the module is one folder, so that its views need no import of one
# another. IMPORTS names the modules that its types depend on. Creates two targets: the static library
# `tidewatch_<room>`, for code that uses the types, and `tidewatch_<room>_module`, for programs whose views import
# the module; the module is linked in.
function(tidewatch_qml_module room uri)
    cmake_parse_arguments(ARG "" "" "SOURCES;VIEWS;IMPORTS;KNOWS" ${ARGN})
    set(target tidewatch_${room})
    string(REPLACE "." "/" path ${uri})
    set(views)
    foreach(view ${ARG_VIEWS})
        get_filename_component(name ${view} NAME)
        set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
        list(APPEND views ${name})
    endforeach()
    qt_add_library(${target} STATIC)
    set_target_properties(${target} PROPERTIES AUTOMOC ON TIDEWATCH_VIEWS "${views}"
        QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
    qt_add_qml_module(${target}
        URI ${uri}
        VERSION 1.0
        DEPENDENCIES QtQuick ${ARG_IMPORTS}
        RESOURCE_PREFIX /qt-project.org/imports
        NO_PLUGIN
        SOURCES ${ARG_SOURCES}
        QML_FILES ${ARG_VIEWS}
        OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${path})
    target_link_libraries(${target} PUBLIC ${ARG_KNOWS} Qt6::Gui Qt6::Qml Qt6::Quick)
    target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    _tidewatch_find_registered_headers(${target} ${ARG_SOURCES})
    _tidewatch_part_generated(${target})
    tidewatch_unity(${target})
    tidewatch_headers(toolkit ${target})
    set_property(GLOBAL APPEND PROPERTY TIDEWATCH_ROOMS ${target})

    # A reference to the registration, so that the linker does not drop it. A plugin would do no more and take longer to
    # compile.
    string(REPLACE "." "_" registration qml_register_types_${uri})
    set(reference ${CMAKE_CURRENT_BINARY_DIR}/${target}_registration.cpp)
    file(CONFIGURE OUTPUT ${reference} @ONLY CONTENT
        "void @registration@();\nvoid (*const volatile reference_@registration@)() = @registration@;\n")
    add_library(${target}_registration OBJECT ${reference})
    add_library(${target}_module INTERFACE)
    target_link_libraries(${target}_module INTERFACE ${target})
    target_sources(${target}_module INTERFACE $<TARGET_OBJECTS:${target}_registration>)
endfunction()

# The generated type registration includes each header by its bare name.
function(_tidewatch_find_registered_headers target)
    foreach(source ${ARGN})
        get_filename_component(folder ${source} DIRECTORY)
        target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    endforeach()
endfunction()

# The toolkit's generated code triggers warnings that ours must not. In a unity build the code that describes the types
# is compiled together with the types: what takes its time are the headers and templates that both need.
function(_tidewatch_part_generated target)
    get_target_property(sources ${target} SOURCES)
    set(registration ${CMAKE_CURRENT_BINARY_DIR}/${target}_qmltyperegistrations.cpp)
    set(generated ${sources})
    list(FILTER generated INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$|_qmltyperegistrations\\.cpp$")
    list(REMOVE_ITEM sources ${generated})
    if(TIDEWATCH_UNITY)
        list(REMOVE_ITEM generated ${registration})
        list(APPEND sources ${registration})
        _tidewatch_join_metaobjects(${target} metaobjects)
        list(APPEND sources ${metaobjects})
    endif()
    set_target_properties(${target} PROPERTIES SOURCES "${sources}")
    set(parts ${target}_qmlcache)
    if(generated)
        add_library(${target}_generated OBJECT ${generated})
        target_link_libraries(${target}_generated PRIVATE $<TARGET_PROPERTY:${target},LINK_LIBRARIES>)
        target_include_directories(${target}_generated PRIVATE $<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_generated>)
        list(APPEND parts ${target}_generated)
    endif()
    foreach(part ${parts})
        target_compile_options(${part} PRIVATE -w)
    endforeach()
    tidewatch_headers(toolkit ${parts})
endfunction()

# Sets `result` to a source with the toolkit's generated metaobjects, which it would compile by themselves.
function(_tidewatch_join_metaobjects target result)
    set(metaobjects ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/mocs_compilation.cpp)
    set(joined ${CMAKE_CURRENT_BINARY_DIR}/${target}_metaobjects.cpp)
    file(CONFIGURE OUTPUT ${joined} CONTENT "#include \"${metaobjects}\"\n")
    set_source_files_properties(${metaobjects} PROPERTIES HEADER_FILE_ONLY ON)
    set(${result} ${joined} PARENT_SCOPE)
endfunction()

# tidewatch_qmllint(<room>)
#
# A test `qmllint_<room>` that fails on any warning about the room's views.
function(tidewatch_qmllint room)
    get_target_property(views tidewatch_${room} TIDEWATCH_VIEWS)
    get_target_property(directory tidewatch_${room} QT_QML_MODULE_OUTPUT_DIRECTORY)
    add_test(NAME qmllint_${room}
        COMMAND $<TARGET_FILE:Qt6::qmllint> --unused-imports warning --compiler warning -I ${CMAKE_BINARY_DIR}/qml
            ${views}
        WORKING_DIRECTORY ${directory})
endfunction()
