include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

install_library(${WORK_DIR}/prefix)

# The first C++ block of the README, as a reader would copy it.
file(READ ${SOURCE_DIR}/README.md readme)
if(NOT readme MATCHES "```cpp\n([^`]*)```")
    message(FATAL_ERROR "the README has no C++ example")
endif()
file(MAKE_DIRECTORY ${WORK_DIR}/host)
file(WRITE ${WORK_DIR}/host/main.cpp "${CMAKE_MATCH_1}")
file(WRITE ${WORK_DIR}/host/CMakeLists.txt "
cmake_minimum_required(VERSION 3.20)
project(Host LANGUAGES CXX)
find_package(QuorvelApi1 CONFIG REQUIRED)
add_executable(host main.cpp)
target_link_libraries(host PRIVATE QuorvelApi1::QuorvelApi1)
")
build_project(${WORK_DIR}/host ${WORK_DIR}/build -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
run_step(${CMAKE_CURRENT_LIST_DIR}/against_simulator
    ${WORK_DIR}/prefix/bin/quorvel-gateway-sim ${WORK_DIR}/build/host)
if(NOT step_output STREQUAL "3.2.0-r7\n")
    message(FATAL_ERROR "the example printed:\n${step_output}")
endif()
