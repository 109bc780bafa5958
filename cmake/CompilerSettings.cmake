# What our own targets are compiled with. Nothing here reaches those who link the library.

set(QUORVEL_SANITIZE "" CACHE STRING "Sanitizers to build with, as for -fsanitize=")

function(quorvel_own_target target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(QUORVEL_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # Headers that were read before are the same bytes in each build, so the compiler cache helps.
        target_compile_options(${target} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_STRICT_ITERATORS)
    if(QUORVEL_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${QUORVEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PRIVATE -fsanitize=${QUORVEL_SANITIZE})
    endif()
    if(QUORVEL_SANITIZE MATCHES "address")
        # Compilers have no common way to tell.
        target_compile_definitions(${target} PRIVATE QUORVEL_LEAK_CHECKER)
    endif()
endfunction()

# Has the compiler read headers that most files of a target include once, where a build is but for
# tests. The other builds show that each file includes what it uses.
function(quorvel_precompile_for_sanitizers target)
    if(NOT QUORVEL_SANITIZE)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    # Not for files with definitions of their own, which the headers were read without.
    get_target_property(sources ${target} SOURCES)
    get_target_property(folder ${target} SOURCE_DIR)
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder})
        get_source_file_property(definitions ${source} TARGET_DIRECTORY ${target} COMPILE_DEFINITIONS)
        if(definitions)
            set_source_files_properties(${source} TARGET_DIRECTORY ${target}
                PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
        endif()
    endforeach()
endfunction()

# For the programs of the command line and their libraries: optimising them takes longer than they
# ever run.
function(quorvel_command_line_target target)
    quorvel_own_target(${target})
    if(QUORVEL_SANITIZE)
        target_compile_options(${target} PRIVATE -O0)
    else()
        target_compile_options(${target} PRIVATE -O1)
    endif()
endfunction()

# Tests are compiled once and run for seconds: time spent on optimising them is lost, and more than
# half of the rest would go to reading the same headers again for each file.
function(quorvel_test_target target)
    quorvel_own_target(${target})
    target_compile_options(${target} PRIVATE -O0 -g0)
    target_link_libraries(${target} PRIVATE
        Qt5::Core Boost::headers GTest::gmock GTest::gtest)
    if(NOT target STREQUAL QuorvelTestHeaders)
        target_precompile_headers(${target} REUSE_FROM QuorvelTestHeaders)
    endif()
endfunction()
