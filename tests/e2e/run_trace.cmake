# Plays one script through a trace tool and compares the whole output with its golden
# trace. On a difference the actual trace is left beside the build for inspection.
execute_process(
    COMMAND ${TRACE}
    INPUT_FILE ${SCRIPT}
    OUTPUT_VARIABLE actual
    ERROR_VARIABLE errors
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${TRACE} failed (${status}):\n${errors}")
endif()
file(READ ${EXPECTED} expected)
if(NOT actual STREQUAL expected)
    get_filename_component(name ${EXPECTED} NAME)
    set(out ${CMAKE_CURRENT_BINARY_DIR}/${name}.actual)
    file(WRITE ${out} "${actual}")
    execute_process(COMMAND diff -u ${EXPECTED} ${out} OUTPUT_VARIABLE difference)
    message(FATAL_ERROR "trace differs from ${EXPECTED}:\n${difference}")
endif()
