include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
# Outside of the source tree, as a host's own platform is.
run_step(mktemp --directory)
string(STRIP "${step_output}" host)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/fake_host/ DESTINATION ${host})
run_step(pkg-config --cflags --libs Qt5Core)
string(STRIP "${step_output}" qt)
separate_arguments(qt UNIX_COMMAND "${qt}")
run_step(c++ -std=c++17 -shared -fPIC ${host}/HostPlatform.cpp -I${host}/include
    -o ${host}/libHostPlatform.so ${qt})
build_sub_project(${WORK_DIR}/build
    -DQUORVEL_PLATFORM=host
    -DQUORVEL_HOST_PLATFORM_INCLUDE_DIR=${host}/include
    -DQUORVEL_HOST_PLATFORM_LIBRARIES=${host}/libHostPlatform.so)
run_step(${WORK_DIR}/build/consumer)
expect_consumer_output()
run_step(${CMAKE_COMMAND} --install ${WORK_DIR}/build --prefix ${WORK_DIR}/prefix)
if(EXISTS ${WORK_DIR}/prefix/include/ostra/OstraLogger.h)
    message(FATAL_ERROR "the host's logger is shadowed by ours")
endif()
build_project(${CMAKE_CURRENT_LIST_DIR}/consumer ${WORK_DIR}/installed
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
run_step(${WORK_DIR}/installed/consumer)
expect_consumer_output()
file(REMOVE_RECURSE ${host})
