# What an installation holds, in components as distributions split them:
# "runtime" is what a program that uses the library needs to run, "development"
# what it needs to be built; "host" and "lua" are for scripts, "python" is for
# programs in Python, "tools" is for whoever writes help.
include(CMakePackageConfigHelpers)

install(TARGETS velmohelp EXPORT velmohelp
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    COMPONENT runtime NAMELINK_COMPONENT development)
# On its own: a distribution's packages point to its own copy.
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT licence)
install(DIRECTORY include/velmohelp
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
  FILES_MATCHING PATTERN "*.h")

# find_package(velmohelp)
string(REGEX REPLACE "/$" "" VELMO_PACKAGE_HELPDIR
  "${VELMO_INSTALLED_HELP_DIR}")
set(velmo_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/velmohelp")
configure_file(cmake/velmohelpConfig.cmake.in
  "${PROJECT_BINARY_DIR}/package/velmohelpConfig.cmake" @ONLY)
write_basic_package_version_file(
  "${PROJECT_BINARY_DIR}/package/velmohelpConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(EXPORT velmohelp NAMESPACE velmohelp:: FILE velmohelpTargets.cmake
  DESTINATION "${velmo_package_dir}" COMPONENT development)
install(FILES
  "${PROJECT_BINARY_DIR}/package/velmohelpConfig.cmake"
  "${PROJECT_BINARY_DIR}/package/velmohelpConfigVersion.cmake"
  DESTINATION "${velmo_package_dir}" COMPONENT development)

# pkg-config. The prefix is relative to the file's own place, so that a tree
# that was unpacked elsewhere still names its own headers.
function(velmo_below_prefix out folder)
  if(IS_ABSOLUTE "${folder}")
    set(${out} "${folder}" PARENT_SCOPE)
  else()
    set(${out} "\${prefix}/${folder}" PARENT_SCOPE)
  endif()
endfunction()
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(VELMO_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH velmo_up "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
  string(REGEX REPLACE "/$" "" velmo_up "${velmo_up}")
  set(VELMO_PC_PREFIX "\${pcfiledir}/${velmo_up}")
endif()
velmo_below_prefix(VELMO_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
velmo_below_prefix(VELMO_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
configure_file(cmake/velmohelp.pc.in
  "${PROJECT_BINARY_DIR}/package/velmohelp.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/package/velmohelp.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

install(FILES docs/man/velmohelp.3 DESTINATION "${CMAKE_INSTALL_MANDIR}/man3"
  COMPONENT development)

install(DIRECTORY python/velmohelp DESTINATION "${VELMO_PYTHON_DIR}"
  COMPONENT python FILES_MATCHING PATTERN "*.py" PATTERN "py.typed")

if(VELMO_BUILD_HOST)
  install(FILES host/lxhost.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT host)
endif()
if(TARGET velmo-help)
  install(FILES tools/velmo-help.1 DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
    COMPONENT tools)
  # Of the library's formats, but not with the library: of that, two major
  # versions may be installed.
  install(FILES docs/man/helpcfg.5 docs/man/helpmap.5
    docs/man/velmohelp-preferences.5
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man5" COMPONENT tools)
endif()
