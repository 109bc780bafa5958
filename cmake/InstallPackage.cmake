# What `cmake --install` puts on a machine: headers, libraries, and how CMake and pkg-config find
# them.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

set(QUORVEL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/QuorvelApi1)

install(TARGETS QuorvelApi1 QuorvelPlatform EXPORT QuorvelApi1Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT QuorvelApi1Targets
    NAMESPACE QuorvelApi1::
    DESTINATION ${QUORVEL_CMAKE_DIR})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/quorvel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_BINARY_DIR}/include/quorvel/QuorvelApi1Export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quorvel)
if(QUORVEL_PLATFORM STREQUAL "own")
    install(DIRECTORY
        ${PROJECT_SOURCE_DIR}/platform/include/ostra
        ${PROJECT_SOURCE_DIR}/platform/include/ostramw
        ${PROJECT_BINARY_DIR}/platform/include/ostra
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()

configure_package_config_file(cmake/QuorvelApi1Config.cmake.in
    ${PROJECT_BINARY_DIR}/QuorvelApi1Config.cmake
    INSTALL_DESTINATION ${QUORVEL_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuorvelApi1ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/QuorvelApi1Config.cmake
    ${PROJECT_BINARY_DIR}/QuorvelApi1ConfigVersion.cmake
    DESTINATION ${QUORVEL_CMAKE_DIR})

if(QUORVEL_PLATFORM STREQUAL "own")
    set(QUORVEL_PC_PLATFORM_LIBS "-lQuorvelPlatform")
    set(QUORVEL_PC_PLATFORM_CFLAGS "")
else()
    set(QUORVEL_PC_PLATFORM_LIBS "")
    foreach(library IN LISTS QUORVEL_HOST_PLATFORM_LIBRARIES)
        if(IS_ABSOLUTE "${library}" OR library MATCHES "^-")
            string(APPEND QUORVEL_PC_PLATFORM_LIBS " ${library}")
        else()
            string(APPEND QUORVEL_PC_PLATFORM_LIBS " -l${library}")
        endif()
    endforeach()
    set(QUORVEL_PC_PLATFORM_CFLAGS "-I${QUORVEL_HOST_PLATFORM_INCLUDE_DIR}")
endif()
# Relative to the file itself, so that an installed tree can be moved.
file(RELATIVE_PATH QUORVEL_PC_PREFIX
    "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file(cmake/quorvelapi1.pc.in ${PROJECT_BINARY_DIR}/quorvelapi1.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quorvelapi1.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
