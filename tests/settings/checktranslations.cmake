# SPDX-License-Identifier: MIT
# Fails if the sources have texts that the translation lacks, or the other way round, or if one is not translated.
file(COPY_FILE "${FILE}" "${COPY}")
execute_process(COMMAND ${COMMAND} "${COPY}" COMMAND_ERROR_IS_FATAL ANY)
file(READ "${FILE}" before)
file(READ "${COPY}" after)
if(NOT before STREQUAL after)
    message(FATAL_ERROR "Texts are new or gone: run './dev translations' and translate them.")
endif()
if(after MATCHES "<translation type=|<translation></translation>|<numerusform></numerusform>")
    message(FATAL_ERROR "${FILE} has texts that are not translated.")
endif()
