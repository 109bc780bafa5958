# Compares what hosts are compiled with and linked against with the baseline. UPDATE_GOLDEN=1 in the
# environment rewrites the baseline, after telling what that changes.
include(${CMAKE_CURRENT_LIST_DIR}/abi.cmake)

describe_abi(${SOURCE_DIR} ${WORK_DIR}/QuorvelApi1.abi)

# All that the libraries export is in it, or the baseline would be blind to some of it.
read_exports(${WORK_DIR}/build/libAbi.so described)
string(REPLACE "\n" ";" described "${described}")
foreach(library libQuorvelApi1 libQuorvelPlatform)
    file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/exports/${library}.txt exports)
    list(REMOVE_ITEM exports ${described})
    if(exports)
        message(FATAL_ERROR "not in a file that begins with the name of the class: ${exports}")
    endif()
endforeach()

compare_with_baseline(${WORK_DIR}/QuorvelApi1.abi)
if("$ENV{UPDATE_GOLDEN}" STREQUAL "1")
    message("${abi_report}")
    configure_file(${WORK_DIR}/QuorvelApi1.abi ${ABI_BASELINE} COPYONLY)
elseif(NOT abi_status EQUAL 0)
    message(FATAL_ERROR "${abi_report}")
endif()
