# What cpack makes of a build that is to be installed below /usr, as the release preset is.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The QuorvelApi1 maintainers")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Packages of hosts need the library that they were built with or a later one.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# Each package needs exactly its own build of the others.
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# Where dpkg-shlibdeps finds our own libraries, which no package owns yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/platform)

# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)
execute_process(COMMAND gzip -9nc CHANGELOG.md WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)

function(quorvel_debian_package component name section summary contents)
    string(TOUPPER ${component} id)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_DESCRIPTION "${summary}
QuorvelApi1 recognises a home gateway in the network, logs in, reads its
state and changes its settings.
${contents}" PARENT_SCOPE)
    install(FILES ${PROJECT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component})
endfunction()

set(CPACK_COMPONENTS_ALL "")
quorvel_debian_package(runtime libquorvelapi1-${PROJECT_VERSION_MAJOR} libs
    "library for managing home gateways" "This package has what programs run with that use it.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)

quorvel_debian_package(development libquorvelapi1-dev libdevel
    "library for managing home gateways - development files"
    "This package has what programs are built with that use it.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= 5.15), libboost-dev (>= 1.74)")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)

if(QUORVEL_BUILD_TOOLS OR QUORVEL_BUILD_SIMULATOR)
    quorvel_debian_package(tools quorvel-tools utils
    "command and simulator for home gateways"
    "This package has quorvelctl, which does that from the shell, and
quorvel-gateway-sim, a gateway without the hardware.")
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
    set(CPACK_COMPONENT_TOOLS_DEPENDS runtime)
endif()

quorvel_debian_package(documentation libquorvelapi1-doc doc
    "library for managing home gateways - documents"
    "This package has the reference of its classes, guides and examples.")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_QUORVEL_BUILD_DIR ${PROJECT_BINARY_DIR})
set(CPACK_INSTALL_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/WriteReference.cmake)

include(CPack)
