# Runs PROGRAM (under EMULATOR, if there is one) and compares what it writes, byte by byte, with the
# file EXPECTED. OUTPUT is where the output goes.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" OUTPUT_FILE "${OUTPUT}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${OUTPUT}" "${EXPECTED}" RESULT_VARIABLE different)
if(different)
    execute_process(COMMAND diff -u "${EXPECTED}" "${OUTPUT}")
    message(FATAL_ERROR "${PROGRAM} writes another text than ${EXPECTED}")
endif()
