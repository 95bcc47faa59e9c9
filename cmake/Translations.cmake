# SPDX-License-Identifier: MIT
# Only the tools are needed, those of the machine that builds, so that a cross-build takes the same ones.
get_filename_component(qt_prefix "${Qt6_DIR}/../../.." ABSOLUTE)
foreach(tool IN ITEMS lrelease lupdate)
    string(TOUPPER "CORVELGUI_${tool}" variable)
    find_program(${variable} NAMES ${tool} PATHS /usr/lib/qt6/bin "${qt_prefix}/bin"
        NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH DOC "Qt's ${tool}")
    find_program(${variable} NAMES ${tool}6 ${tool} NO_CMAKE_FIND_ROOT_PATH)
endforeach()
if(NOT CORVELGUI_LRELEASE)
    message(FATAL_ERROR "Qt's lrelease is missing (Debian: qt6-l10n-tools); CORVELGUI_LRELEASE may name it")
endif()

# corvelgui_add_translations(<target> DESTINATION <folder> [COMPONENT <name>] [RESOURCE <prefix>] SOURCES <file.ts>...)
#
# Compiles the translations with <target>, installs them if there is a component, and builds them in below the prefix
# if there is one. The build tree has them at the same place as an installation, so that programs find them from their
# own folder in both.
function(corvelgui_add_translations target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION;COMPONENT;RESOURCE" "SOURCES")
    set(folder "${PROJECT_BINARY_DIR}/${arg_DESTINATION}")
    set(files)
    foreach(source IN LISTS arg_SOURCES)
        get_filename_component(source "${source}" ABSOLUTE)
        get_filename_component(name "${source}" NAME_WE)
        set(compiled "${folder}/${name}.qm")
        add_custom_command(OUTPUT "${compiled}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
            COMMAND "${CORVELGUI_LRELEASE}" -silent "${source}" -qm "${compiled}"
            DEPENDS "${source}"
            COMMENT "Compiling the translation ${name}"
            VERBATIM)
        target_sources(${target} PRIVATE "${compiled}")
        list(APPEND files "${compiled}")
        if(arg_COMPONENT)
            install(FILES "${compiled}" DESTINATION "${arg_DESTINATION}" COMPONENT ${arg_COMPONENT})
        endif()
    endforeach()
    if(arg_RESOURCE)
        string(TOLOWER "${target}_translations" name)
        list(TRANSFORM files REPLACE ".*/(.*)" "<file alias=\"\\1\">\\0</file>" OUTPUT_VARIABLE entries)
        string(JOIN "\n" entries ${entries})
        set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
        file(CONFIGURE OUTPUT "${list}" CONTENT
            "<RCC><qresource prefix=\"${arg_RESOURCE}\">\n${entries}\n</qresource></RCC>\n")
        set(source "${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}.cpp")
        # Another system's Qt may read less than the tool of this one writes, but zlib always.
        add_custom_command(OUTPUT "${source}"
            COMMAND Qt6::rcc --compress-algo zlib --name ${name} -o "${source}" "${list}"
            DEPENDS ${files} "${list}"
            VERBATIM)
        target_sources(${target} PRIVATE "${source}")
        set_source_files_properties("${source}" PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
        corvelgui_keep_resources(${target} ${name})
    endif()
endfunction()

# corvelgui_update_translations(<file.ts> [ONLY_PLURALS] FROM <folder>...)
#
# Lets the target update_translations bring the texts of the sources into the file and drop those that are gone; with
# ONLY_PLURALS, for the language of the sources, just the texts that depend on a number. The command, without the file,
# is in the global property CORVELGUI_UPDATE_<name of the file>, for the test that nothing is missing.
function(corvelgui_update_translations source)
    cmake_parse_arguments(PARSE_ARGV 1 arg "ONLY_PLURALS" "" "FROM")
    if(NOT CORVELGUI_LUPDATE)
        return()
    endif()
    if(arg_ONLY_PLURALS)
        set(plurals -pluralonly)
    else()
        set(plurals)
    endif()
    set(command "${CORVELGUI_LUPDATE}" -silent -no-obsolete ${plurals} -locations none ${arg_FROM} -ts)
    get_filename_component(name "${source}" NAME_WE)
    if(NOT TARGET update_translations)
        add_custom_target(update_translations)
    endif()
    add_custom_target(update_${name} COMMAND ${command} "${source}" VERBATIM)
    add_dependencies(update_translations update_${name})
    set_property(GLOBAL PROPERTY CORVELGUI_UPDATE_${name} "${command}")
endfunction()
