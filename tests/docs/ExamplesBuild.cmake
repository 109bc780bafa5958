include(${CMAKE_CURRENT_LIST_DIR}/../install/steps.cmake)

install_library(${WORK_DIR}/prefix)
build_project(${SOURCE_DIR}/examples ${WORK_DIR}/build -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
