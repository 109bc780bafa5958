# What the installation tests share.

set(CONSUMER_OUTPUT "vdsl 1, general 0, error 26, firmware '', logged 1\n")

# Runs a command; fails the test, with what it printed, unless it succeeds.
function(run_step)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${output}\n${errors}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

function(expect_consumer_output)
    if(NOT step_output STREQUAL CONSUMER_OUTPUT)
        message(FATAL_ERROR "the consumer printed:\n${step_output}instead of:\n${CONSUMER_OUTPUT}")
    endif()
endfunction()

# A fresh prefix with the library installed.
function(install_library prefix)
    file(REMOVE_RECURSE ${WORK_DIR})
    file(MAKE_DIRECTORY ${WORK_DIR})
    run_step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
    foreach(path
            include/quorvel/QuorvelApi1.h
            include/quorvel/QuorvelApi1Export.h
            include/ostra/OstraLogger.h
            include/ostramw/ConfigDataFactory.h
            ${LIBDIR}/libQuorvelApi1.so
            ${LIBDIR}/libQuorvelApi1.so.${MAJOR}
            ${LIBDIR}/libQuorvelApi1.so.${VERSION}
            ${LIBDIR}/cmake/QuorvelApi1/QuorvelApi1Config.cmake
            ${LIBDIR}/pkgconfig/quorvelapi1.pc)
        if(NOT EXISTS ${prefix}/${path})
            message(FATAL_ERROR "not installed: ${path}")
        endif()
    endforeach()
endfunction()

# Configures and builds a CMake project below the working folder. Where another test has compiled the
# same file with a build folder of the same depth, the compiler cache has it.
function(build_project source build)
    set(ENV{CCACHE_BASEDIR} ${BUILD_DIR})
    set(ENV{CCACHE_NOHASHDIR} 1)
    run_step(${CMAKE_COMMAND} -S ${source} -B ${build} -G ${GENERATOR}
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache ${ARGN})
    run_step(${CMAKE_COMMAND} --build ${build})
endfunction()

# The library as a part of a host's own build.
function(build_sub_project build)
    build_project(${CMAKE_CURRENT_LIST_DIR}/sub_project ${build}
        -DQUORVEL_SOURCES=${SOURCE_DIR} ${ARGN})
endfunction()

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
