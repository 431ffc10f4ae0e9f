# Debian packages by CPack, one for each component of the installation but the licence,
# which they name instead.
#
# The helper programs go with the library: it is of no use without them, and
# both change together. A second major version has to give their folder another
# name, so that both can be installed. The Lua module and the host program are
# two packages, because each is of use without the other: the module belongs to
# the stock interpreter, the host brings its own.
#
# Their revision begins with 0, so that a distribution's own package of the same
# version replaces them.
file(STRINGS "${PROJECT_SOURCE_DIR}/packaging/changelog" velmo_entry
  LIMIT_COUNT 1)
if(NOT velmo_entry MATCHES "^velmohelp \\(${PROJECT_VERSION}-(0[a-z0-9]+)\\) ")
  message(FATAL_ERROR "packaging/changelog does not begin with "
    "${PROJECT_VERSION}: ${velmo_entry}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME velmohelp)
set(CPACK_DEBIAN_PACKAGE_SOURCE velmohelp)
# Each package has a synopsis of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "velmohelp maintainers <maintainers@velmo.com>"
  CACHE STRING "Who answers for the packages")
set(CPACK_DEBIAN_PACKAGE_RELEASE "${CMAKE_MATCH_1}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/finish.cmake")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where the module's own dependency, the library, is found before there is a
# package of it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${VELMO_LIBRARY_DIR}")

# velmo_package(COMPONENT NAME SECTION SYNOPSIS DESCRIPTION): the package NAME
# holds a component.
macro(velmo_package component name section synopsis description)
  string(TOUPPER ${component} key)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${key}_DESCRIPTION "${synopsis}\n${description}")
  set(folder "${CMAKE_INSTALL_DATAROOTDIR}/doc/${name}")
  install(FILES packaging/copyright DESTINATION "${folder}"
    COMPONENT ${component})
  velmo_install_compressed("${PROJECT_SOURCE_DIR}/packaging/changelog"
    changelog.Debian.gz "${folder}" ${component})
endmacro()

velmo_package(runtime "libvelmohelp${PROJECT_VERSION_MAJOR}" libs
  "context-help client library"
  "Shows the help page that belongs to a place in an application, in the local
help viewer or the default browser, from help that is installed, downloaded or
online.
.
This package holds the library and the programs that work for it.")
# Whatever is linked with this version needs it or a later one.
set(velmo_control "${PROJECT_BINARY_DIR}/package")
file(CONFIGURE OUTPUT "${velmo_control}/shlibs" CONTENT
  "libvelmohelp @PROJECT_VERSION_MAJOR@ @CPACK_DEBIAN_RUNTIME_PACKAGE_NAME@ (>= @PROJECT_VERSION@)\n"
  @ONLY)
file(CONFIGURE OUTPUT "${velmo_control}/triggers" CONTENT
  "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  "${velmo_control}/shlibs" "${velmo_control}/triggers")

velmo_package(development libvelmohelp-dev libdevel
  "context-help client library (development files)"
  "Shows the help page that belongs to a place in an application.
.
This package holds what it takes to build programs with the library: headers,
the files for CMake and pkg-config, and the script host's half of the binding
as a static library for programs with Lua 5.4.")
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS liblua5.4-dev)

if(VELMO_BUILD_HOST)
  list(APPEND CPACK_COMPONENTS_ALL host lua)
  velmo_package(host velmohelp-host interpreters
    "script host for the context-help client"
    "Shows the help page that belongs to a place in an application.
.
This package holds lxhost, a program that loads the client as a plug-in and
runs a script of Lua 5.4.")
  # It loads the library when it runs, so that nothing else tells of it.
  set(CPACK_COMPONENT_HOST_DEPENDS runtime)

  velmo_package(lua lua-velmohelp interpreters
    "context-help client for Lua 5.4"
    "Shows the help page that belongs to a place in an application.
.
This package holds the module that lua5.4 gets for require 'velmohelp'.")
  set(CPACK_COMPONENT_LUA_DEPENDS runtime)
  set(CPACK_DEBIAN_LUA_PACKAGE_RECOMMENDS lua5.4)
endif()
include(CPack)
