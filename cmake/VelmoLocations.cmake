# The places that a distribution, a test or the demonstration may want
# elsewhere, written into one generated source file.
option(VELMO_OWN_WORLD
  "Look for help in the build folder's world/ and on localhost: no test touches the machine or the network"
  OFF)
if(VELMO_OWN_WORLD)
  set(velmo_world "${PROJECT_BINARY_DIR}/world")
  set(velmo_installed_help "${velmo_world}/Help/")
  set(velmo_frameworks "${velmo_world}/Frameworks")
  set(velmo_sysconf "${velmo_world}/etc/velmo")
  set(velmo_online_help localhost)
else()
  set(velmo_installed_help "/Library/Application Support/Velmo/Help/")
  set(velmo_frameworks "/Library/Frameworks")
  set(velmo_sysconf "/etc/velmo")
  set(velmo_online_help help.velmo.com)
endif()
set(VELMO_INSTALLED_HELP_DIR "${velmo_installed_help}"
  CACHE STRING "The machine's installed help content")
set(VELMO_FRAMEWORKS_DIR "${velmo_frameworks}"
  CACHE STRING "The last folder that is searched for bundles")
set(VELMO_SYSCONF_DIR "${velmo_sysconf}"
  CACHE STRING "The folder of the administrator's preferences")
set(VELMO_ONLINE_HELP_HOST "${velmo_online_help}"
  CACHE STRING "The online help server's host name")

# The client relies on the slash after the content folder's name.
string(REGEX REPLACE "([^/])$" "\\1/" VELMO_INSTALLED_HELP_DIR
  "${VELMO_INSTALLED_HELP_DIR}")
set(VELMO_LOCATIONS_SOURCE "${PROJECT_BINARY_DIR}/generated/locations.cpp")
configure_file("${PROJECT_SOURCE_DIR}/cmake/locations.cpp.in"
  "${VELMO_LOCATIONS_SOURCE}" @ONLY)
