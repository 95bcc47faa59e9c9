# SPDX-License-Identifier: MIT
set(CORVELGUI_HOST_BUILD "$ENV{CORVELGUI_HOST_BUILD}" CACHE PATH
    "Build tree for this machine whose clips a build for another system takes")

# corvelgui_make_clips(<target> PROGRAM <name> FOLDER <folder> CLIPS <name>...)
#
# The target <target> makes the clips in <folder>, which is relative to the build tree: it runs PROGRAM with the folder. A
# build for another system has neither such a program nor, perhaps, the encoders, and copies what a build for this machine made.
function(corvelgui_make_clips target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROGRAM;FOLDER" "CLIPS")
    set(folder "${PROJECT_BINARY_DIR}/${arg_FOLDER}")
    list(TRANSFORM arg_CLIPS PREPEND "${folder}/" OUTPUT_VARIABLE clips)
    if(CMAKE_CROSSCOMPILING)
        list(TRANSFORM arg_CLIPS PREPEND "${CORVELGUI_HOST_BUILD}/${arg_FOLDER}/" OUTPUT_VARIABLE made)
        foreach(clip IN LISTS made)
            if(NOT EXISTS "${clip}")
                message(FATAL_ERROR "CORVELGUI_HOST_BUILD must name a build tree for this machine whose target ${target} "
                    "is made (\"./dev windows\" does it); there is no ${clip}")
            endif()
        endforeach()
        set(depends ${made})
        set(command ${CMAKE_COMMAND} -E copy ${made} "${folder}")
    else()
        set(depends ${arg_PROGRAM})
        # What codecs keep to the end of the program is no fault of the build.
        set(command ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0 $<TARGET_FILE:${arg_PROGRAM}> "${folder}")
    endif()
    add_custom_command(OUTPUT ${clips}
        COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
        COMMAND ${command}
        DEPENDS ${depends}
        COMMENT "Making the clips of ${target}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${clips})
endfunction()
