# Installs this build into a fresh folder, then builds and runs a client against it as its own project.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN} ended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
set(platform "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix")
if(TOOLCHAIN)
    set(platform "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DCMAKE_FIND_ROOT_PATH=${WORK_DIR}/prefix"
        "-DCORVELGUI_QT_WINDOWS=${QT_WINDOWS}")
endif()
run(${CMAKE_COMMAND} -S "${CLIENT_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
    ${platform}
    "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DSANITIZERS=${SANITIZERS}")
run(${CMAKE_COMMAND} --build "${WORK_DIR}/build")
# A Windows program finds its DLLs beside itself.
file(COPY "${WORK_DIR}/build/client${EXE}" DESTINATION "${WORK_DIR}/prefix/bin")
run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen "LD_LIBRARY_PATH=${WORK_DIR}/prefix/${LIBDIR}"
    ${EMULATOR} "${WORK_DIR}/prefix/bin/client${EXE}")
if(NOT output MATCHES "14 days in view")
    message(FATAL_ERROR "The client printed:\n${output}")
endif()
