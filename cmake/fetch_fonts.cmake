# Fetches the typefaces: cmake -D NPM=<program or nothing> -D FOLDER=<where to> -D WORK=<scratch> -P fetch_fonts.cmake
# Never fails: what cannot be fetched is omitted with a message.

set(PACKAGES
    @expo-google-fonts/fraunces@0.4.1
    @expo-google-fonts/ibm-plex-mono@0.4.1)

# Package, file in it, target name, SHA-256. One row per weight in use; each costs memory at run time.
set(FILES
    "fraunces|400Regular/Fraunces_400Regular.ttf|Fraunces-Regular.ttf|9cede435056e96eb39ac587d57cc9509484d7fa18fbb0532f149f183af13b14d"
    "fraunces|500Medium/Fraunces_500Medium.ttf|Fraunces-Medium.ttf|e88255a4ef9763c2ece20de3cd3ee241065f18a19a791d4d5c0289a4fbda1a0e"
    "fraunces|600SemiBold/Fraunces_600SemiBold.ttf|Fraunces-SemiBold.ttf|9f03c0fe70d1670d22f392a138ac02eceedc5eee5f1cd8d7486ba2aed843b8aa"
    "ibm-plex-mono|300Light/IBMPlexMono_300Light.ttf|IBMPlexMono-Light.ttf|9c829b8f32b94999060e0ba9d2299ed1d9637702318346f0c194fb9843038fd8"
    "ibm-plex-mono|400Regular/IBMPlexMono_400Regular.ttf|IBMPlexMono-Regular.ttf|ab08018ccd276b79fb2c636bb95b9c543598f9d50505fe92506fcb4dae7810cd"
    "ibm-plex-mono|500Medium/IBMPlexMono_500Medium.ttf|IBMPlexMono-Medium.ttf|8ae925744d53758b67a77ea35c2fc46d7b688c7d8c04da3b579902bed0ca0e17")

set(SECONDS 60)

function(give_up reason)
    message(STATUS "No typefaces fetched (${reason}); using fallbacks")
    file(REMOVE_RECURSE ${WORK})
endfunction()

function(fetch)
    file(MAKE_DIRECTORY ${FOLDER})
    file(REMOVE_RECURSE ${WORK})
    file(MAKE_DIRECTORY ${WORK})
    if(NOT NPM)
        give_up("npm is not on this machine")
        return()
    endif()
    execute_process(
        COMMAND ${NPM} pack --silent --no-update-notifier --fetch-retries=0 --cache ${WORK}/cache ${PACKAGES}
        WORKING_DIRECTORY ${WORK}
        TIMEOUT ${SECONDS}
        RESULT_VARIABLE result
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        give_up("npm: ${result}")
        return()
    endif()
    foreach(name fraunces ibm-plex-mono)
        file(GLOB archive ${WORK}/*-${name}-*.tgz)
        file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${WORK}/${name})
        file(COPY_FILE ${WORK}/${name}/package/LICENSE_FONT ${FOLDER}/${name}-licence.txt)
    endforeach()
    foreach(row ${FILES})
        string(REPLACE "|" ";" row ${row})
        list(GET row 0 package)
        list(GET row 1 file)
        list(GET row 2 name)
        list(GET row 3 expected)
        set(source ${WORK}/${package}/package/${file})
        file(SHA256 ${source} actual)
        if(actual STREQUAL expected)
            file(COPY_FILE ${source} ${FOLDER}/${name})
        else()
            message(STATUS "${name} is not the file that was expected; left out")
        endif()
    endforeach()
    file(REMOVE_RECURSE ${WORK})
endfunction()

fetch()
