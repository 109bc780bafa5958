# Compares what the libraries export with the lists in exports/, line by line. UPDATE_GOLDEN=1 in the
# environment rewrites the lists.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

# A library's symbols without addresses and, as constructors have several, without repetitions.
function(read_exports library result)
    run_step(nm --dynamic --defined-only --demangle --format=posix ${library})
    string(REGEX REPLACE " [A-Za-z] [0-9a-f]+( [0-9a-f]+)?\n" "\n" names "${step_output}")
    string(STRIP "${names}" names)
    string(REPLACE "\n" ";" names "${names}")
    list(SORT names)
    list(REMOVE_DUPLICATES names)
    list(JOIN names "\n" names)
    set(${result} "${names}\n" PARENT_SCOPE)
endfunction()

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
