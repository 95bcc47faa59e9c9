# SPDX-License-Identifier: MIT
# Follows README with this build: installs it, moves the installation elsewhere, then builds and starts the review
# client, README's own program and each of the examples from there.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} ended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Writes README's block of that language.
function(write_block language file)
    file(READ "${SOURCE_DIR}/README.md" text)
    string(REGEX REPLACE ";" "\\\\;" text "${text}")
    string(FIND "${text}" "```${language}\n" begin)
    string(LENGTH "```${language}\n" fence)
    math(EXPR begin "${begin} + ${fence}")
    string(SUBSTRING "${text}" ${begin} -1 text)
    string(FIND "${text}" "```\n" end)
    string(SUBSTRING "${text}" 0 ${end} text)
    string(REPLACE "\\;" ";" text "${text}")
    file(WRITE "${file}" "${text}")
endfunction()

# Without a display, and with nothing else that README does not name.
function(start program)
    run(${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH QT_QPA_PLATFORM=offscreen ${EMULATOR} "${program}" ${ARGN})
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/moved")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
file(RENAME "${WORK_DIR}/installed" "${prefix}")
if(HAS_APPS)
    start("${prefix}/bin/corvel-review${EXE}" --picture "${WORK_DIR}/review.png" --language de)
endif()

set(platform "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${prefix}")
if(TOOLCHAIN)
    set(platform "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DCMAKE_FIND_ROOT_PATH=${prefix}"
        "-DCORVELGUI_QT_WINDOWS=${QT_WINDOWS}")
endif()

# Builds a project, and starts these programs of it, each a path in its build folder.
function(try_project project build)
    run(${CMAKE_COMMAND} -S "${project}" -B "${build}" -G "${GENERATOR}" ${platform}
        "-DCMAKE_PROJECT_INCLUDE=${CMAKE_CURRENT_LIST_DIR}/quitwhenpainted.cmake"
        "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}")
    run(${CMAKE_COMMAND} --build "${build}")
    foreach(program IN LISTS ARGN)
        set(program "${build}/${program}${EXE}")
        if(TOOLCHAIN)
            # A Windows program finds its DLLs beside itself.
            file(COPY "${program}" DESTINATION "${prefix}/bin")
            get_filename_component(name "${program}" NAME)
            set(program "${prefix}/bin/${name}")
        endif()
        start("${program}")
        if(NOT output MATCHES "Shown: ")
            message(FATAL_ERROR "${program} showed no window:\n${output}")
        endif()
    endforeach()
endfunction()

write_block(cmake "${WORK_DIR}/readme/CMakeLists.txt")
write_block(cpp "${WORK_DIR}/readme/main.cpp")
try_project("${WORK_DIR}/readme" "${WORK_DIR}/readme/build" client)

file(GLOB examples RELATIVE "${SOURCE_DIR}/examples" "${SOURCE_DIR}/examples/*/main.cpp")
list(TRANSFORM examples REPLACE "(.+)/main.cpp" "\\1/\\1")
try_project("${SOURCE_DIR}/examples" "${WORK_DIR}/examples" ${examples})
