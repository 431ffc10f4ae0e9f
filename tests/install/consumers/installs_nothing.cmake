# Fails when installing the build tree BUILD, a project that embeds the library,
# brings files of the library along.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/installed_files.cmake")
file(REMOVE_RECURSE "${STAGE}")
velmo_install(--prefix "${STAGE}")
velmo_installed_files(files)
if(files)
  message(FATAL_ERROR "Installed without being asked for: ${files}")
endif()
