# The places that a distribution, a test or the demonstration may want
# elsewhere, written into one generated source file.
set(VELMO_INSTALLED_HELP_DIR "/Library/Application Support/Velmo/Help/"
  CACHE STRING "The machine's installed help content")
set(VELMO_FRAMEWORKS_DIR "/Library/Frameworks"
  CACHE STRING "The last folder that is searched for bundles")
set(VELMO_SYSCONF_DIR "/etc/velmo"
  CACHE STRING "The folder of the administrator's preferences")
set(VELMO_ONLINE_HELP_HOST "help.velmo.com"
  CACHE STRING "The online help server's host name")

# The client relies on the slash after the content folder's name.
string(REGEX REPLACE "([^/])$" "\\1/" VELMO_INSTALLED_HELP_DIR
  "${VELMO_INSTALLED_HELP_DIR}")
set(VELMO_LOCATIONS_SOURCE "${PROJECT_BINARY_DIR}/generated/locations.cpp")
configure_file("${PROJECT_SOURCE_DIR}/cmake/locations.cpp.in"
  "${VELMO_LOCATIONS_SOURCE}" @ONLY)
