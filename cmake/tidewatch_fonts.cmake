# tidewatch_fonts(<program>)
#
# Puts the folder "Fonts" with the brand's typefaces beside the program. They are fetched
# once into the build tree, in the weights in use, through npm if it is installed; without it, or without a network,
# the folder is empty and text uses packaged fallbacks.
function(tidewatch_fonts program)
    set(folder ${CMAKE_BINARY_DIR}/resources/Fonts)
    if(NOT TARGET tidewatch_fonts)
        find_program(NPM_PROGRAM npm)
        set(stamp ${CMAKE_BINARY_DIR}/resources/fonts.stamp)
        set(script ${CMAKE_SOURCE_DIR}/cmake/fetch_fonts.cmake)
        add_custom_command(
            OUTPUT ${stamp}
            COMMAND ${CMAKE_COMMAND} -D NPM=$<$<BOOL:${NPM_PROGRAM}>:${NPM_PROGRAM}> -D FOLDER=${folder}
                -D WORK=${CMAKE_BINARY_DIR}/resources/fetch -P ${script}
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${script}
            COMMENT "Fetching typefaces"
            VERBATIM)
        add_custom_target(tidewatch_fonts DEPENDS ${stamp})
    endif()
    add_dependencies(${program} tidewatch_fonts)
    add_custom_command(TARGET ${program} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E create_symlink ${folder} $<TARGET_FILE_DIR:${program}>/Fonts
        VERBATIM)
endfunction()
