# Compares what the libraries export with the lists in exports/, line by line. UPDATE_GOLDEN=1 in the
# environment rewrites the lists.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

file(MAKE_DIRECTORY ${WORK_DIR})
foreach(library src/libQuorvelApi1 platform/libQuorvelPlatform)
    get_filename_component(name ${library} NAME)
    set(list ${CMAKE_CURRENT_LIST_DIR}/exports/${name}.txt)
    read_exports(${BUILD_DIR}/${library}.so exports)
    file(WRITE ${WORK_DIR}/${name}.txt "${exports}")
    if("$ENV{UPDATE_GOLDEN}" STREQUAL "1")
        file(WRITE ${list} "${exports}")
    endif()
    run_step(diff --unified=0 ${list} ${WORK_DIR}/${name}.txt)
endforeach()
