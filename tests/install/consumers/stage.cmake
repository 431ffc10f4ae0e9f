# Installs the build tree BUILD below STAGE as a packager does: component by
# component, with DESTDIR, for the prefix /usr, at which the tree is not. What
# finds its parts there finds them in any folder.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/installed_files.cmake")
file(REMOVE_RECURSE "${STAGE}")
set(ENV{DESTDIR} "${STAGE}")

velmo_install(--prefix /usr --component runtime)
velmo_installed_files(runtime)
foreach(needed IN ITEMS libvelmohelp.so.1 ${HELPERS})
  if(NOT "${STAGE}/usr/${LIBDIR}/${needed}" IN_LIST runtime)
    message(FATAL_ERROR "No ${needed} at run time: ${runtime}")
  endif()
endforeach()
list(FILTER runtime INCLUDE REGEX "(\\.(a|h|pc|cmake)|/libvelmohelp\\.so)$")
if(runtime)
  message(FATAL_ERROR "Of no use at run time: ${runtime}")
endif()
velmo_install(--prefix /usr --component development)
velmo_install(--prefix /usr --component python)
