# The reference has no warning, which includes that nothing public is undocumented; and a header that
# has something undocumented would be refused.

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
file(READ ${DOXYFILE} settings)

function(make_reference more_settings status_variable log_variable)
    file(WRITE ${WORK_DIR}/Doxyfile
        "${settings}\nOUTPUT_DIRECTORY = \"${WORK_DIR}\"\n${more_settings}\n")
    execute_process(COMMAND doxygen ${WORK_DIR}/Doxyfile
        RESULT_VARIABLE status OUTPUT_VARIABLE log ERROR_VARIABLE log)
    set(${status_variable} ${status} PARENT_SCOPE)
    set(${log_variable} "${log}" PARENT_SCOPE)
endfunction()

make_reference("" status log)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "the reference has warnings:\n${log}")
endif()
foreach(page general internet wan wireless telephony usbhost)
    file(GLOB found ${WORK_DIR}/html/*reference_${page}.html)
    if(NOT found)
        message(FATAL_ERROR "the reference has no page ${page}")
    endif()
endforeach()

file(WRITE ${WORK_DIR}/Undocumented.h "/// Documented.\nstruct Documented {\n    int undocumented;\n};\n")
make_reference("INPUT += \"${WORK_DIR}/Undocumented.h\"" status log)
if(status EQUAL 0 OR NOT log MATCHES "undocumented")
    message(FATAL_ERROR "something undocumented got through:\n${log}")
endif()
