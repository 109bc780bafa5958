include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

install_library(${WORK_DIR}/prefix)
build_project(${CMAKE_CURRENT_LIST_DIR}/consumer ${WORK_DIR}/build
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
run_step(${WORK_DIR}/build/consumer)
expect_consumer_output()
