# SPDX-License-Identifier: MIT
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)

# Wherever an installation is moved, its libraries find each other and its programs the libraries. Debian's packages
# have no run path: CMAKE_SKIP_INSTALL_RPATH.
file(RELATIVE_PATH from_programs_to_libraries "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/${from_programs_to_libraries}")
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)

# Until 1.0 every second number can be another interface, from then on every first.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(CORVELGUI_SOVERSION "0.${PROJECT_VERSION_MINOR}")
    set(CORVELGUI_COMPATIBILITY SameMinorVersion)
else()
    set(CORVELGUI_SOVERSION "${PROJECT_VERSION_MAJOR}")
    set(CORVELGUI_COMPATIBILITY SameMajorVersion)
endif()

if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    set(CORVELGUI_STATIC ON)
endif()

# corvelgui_add_library(<Package> HEADERS <[folder/]Name>...)
#
# Makes the library <Package>, shared unless BUILD_SHARED_LIBS is off, with the alias <Package>::<Package>, its export header, a forwarding header
# <Package/Name> for every listed name, and everything that an installed package needs. The caller adds sources and
# links libraries.
function(corvelgui_add_library package)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS")
    string(TOLOWER "${package}" lower)
    string(TOUPPER "${package}" upper)

    if(CORVELGUI_STATIC)
        add_library(${package} STATIC)
        target_compile_definitions(${package} PUBLIC ${upper}_STATIC_DEFINE)
    else()
        add_library(${package} SHARED)
    endif()
    add_library(${package}::${package} ALIAS ${package})
    set_target_properties(${package} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${CORVELGUI_SOVERSION}
        EXPORT_NAME ${package})
    if(WIN32 AND NOT CORVELGUI_STATIC)
        set_target_properties(${package} PROPERTIES PREFIX "")
        corvelgui_windows_resources(${package} "${package} library")
    elseif(NOT WIN32 AND NOT APPLE AND NOT CORVELGUI_STATIC)
        # Symbols carry the version of the interface, so that two of them can live in one process.
        set(version_script "${CMAKE_CURRENT_BINARY_DIR}/${package}.version")
        file(CONFIGURE OUTPUT "${version_script}" CONTENT "${upper}_${CORVELGUI_SOVERSION} { *; };\n")
        target_link_options(${package} PRIVATE "-Wl,--version-script=${version_script}")
        set_property(TARGET ${package} APPEND PROPERTY LINK_DEPENDS "${version_script}")
    endif()
    target_link_libraries(${package} PRIVATE $<BUILD_INTERFACE:corvelgui_settings>)
    target_compile_features(${package} PUBLIC cxx_std_20)

    set(include_dir "${PROJECT_BINARY_DIR}/include")
    target_include_directories(${package}
        PUBLIC "$<BUILD_INTERFACE:${include_dir}>" "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>"
        PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    generate_export_header(${package} BASE_NAME ${lower}
        EXPORT_FILE_NAME "${include_dir}/${package}/${lower}_export.h")
    install(FILES "${include_dir}/${package}/${lower}_export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}" COMPONENT development)

    foreach(entry IN LISTS arg_HEADERS)
        corvelgui_forward_header(${package} "${entry}")
    endforeach()

    install(TARGETS ${package} EXPORT ${package}Targets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
    set(config_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
    install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION "${config_dir}" COMPONENT development)
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/${package}Config.cmake.in"
        "${PROJECT_BINARY_DIR}/${package}Config.cmake" INSTALL_DESTINATION "${config_dir}")
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
        COMPATIBILITY ${CORVELGUI_COMPATIBILITY})
    install(FILES "${PROJECT_BINARY_DIR}/${package}Config.cmake" "${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake"
        DESTINATION "${config_dir}" COMPONENT development)
endfunction()

# One forwarding header for the build tree and one to install, both for [folder/]Name.
function(corvelgui_forward_header package entry)
    get_filename_component(name "${entry}" NAME)
    get_filename_component(folder "${entry}" DIRECTORY)
    string(TOLOWER "${entry}.h" header)
    set(source "${CMAKE_CURRENT_SOURCE_DIR}/${header}")
    if(NOT EXISTS "${source}")
        message(FATAL_ERROR "<${package}/${name}> is listed as a public header, but ${source} does not exist")
    endif()

    set(target "${source}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/ForwardingHeader.in" "${PROJECT_BINARY_DIR}/include/${package}/${name}")
    set(target "${header}")
    set(installed "${PROJECT_BINARY_DIR}/installed-include/${package}/${name}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/ForwardingHeader.in" "${installed}")

    install(FILES "${source}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}/${folder}"
        COMPONENT development)
    install(FILES "${installed}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}" COMPONENT development)
endfunction()

# corvelgui_keep_resources(<target> <name>)
#
# Programs that link the static <target> keep the resources of <name>.qrc, which no code of theirs refers to.
function(corvelgui_keep_resources target name)
    if(NOT CORVELGUI_STATIC)
        return()
    endif()
    if(MSVC)
        target_link_options(${target} INTERFACE "/INCLUDE:?qInitResources_${name}@@YAHXZ")
    else()
        string(LENGTH "qInitResources_${name}" length)
        target_link_options(${target} INTERFACE "LINKER:--undefined=_Z${length}qInitResources_${name}v")
    endif()
endfunction()
