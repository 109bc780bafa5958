# The binary interface of a source tree, as XML that abidiff reads.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

set(ABI_BASELINE ${CMAKE_CURRENT_LIST_DIR}/abi/QuorvelApi1.abi)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(describe_abi tree xml)
    build_project(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/abi ${WORK_DIR}/build
        -DCMAKE_CXX_COMPILER=g++ -DTREE=${tree} -DBUILD_DIR=${BUILD_DIR})
    # No paths, lines and names that mean nothing to a linker.
    run_step(abidw --exported-interfaces-only --no-architecture --no-comp-dir-path --no-corpus-path
        --no-elf-needed --no-parameter-names --no-show-locs --no-write-default-sizes
        --type-id-style hash --out-file ${xml} ${WORK_DIR}/build/libAbi.so)
endfunction()

# What abidiff says of such a file beside the baseline, and its exit status: 0 if they are the same.
function(compare_with_baseline xml)
    execute_process(COMMAND abidiff --harmless --no-architecture ${ARGN} ${ABI_BASELINE} ${xml}
        RESULT_VARIABLE status OUTPUT_VARIABLE report ERROR_VARIABLE report)
    set(abi_status "${status}" PARENT_SCOPE)
    set(abi_report "${report}" PARENT_SCOPE)
endfunction()
