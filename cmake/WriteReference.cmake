# Run by cpack before it gathers what goes into the packages.

execute_process(COMMAND ${CMAKE_COMMAND} --build ${CPACK_QUORVEL_BUILD_DIR} --target doc
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the package of the documents needs the reference")
endif()
