include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

file(REMOVE_RECURSE ${WORK_DIR})
# Both ways put the library's build in the same place, so it is compiled but once.
foreach(way add_subdirectory FetchContent)
    build_sub_project(${WORK_DIR}/build -DWAY=${way})
    run_step(${WORK_DIR}/build/consumer)
    expect_consumer_output()
endforeach()
