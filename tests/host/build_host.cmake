# Installs BUILD into WORK/prefix, builds the host project HOST against it and runs it.
file(REMOVE_RECURSE ${WORK})
function(step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${out}")
    endif()
    message("${out}")
endfunction()
step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
step(${CMAKE_COMMAND} -S ${HOST} -B ${WORK}/host -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/prefix
     "-DCMAKE_CXX_FLAGS=${HOST_FLAGS}")
step(${CMAKE_COMMAND} --build ${WORK}/host)
step(${WORK}/host/list-host)
