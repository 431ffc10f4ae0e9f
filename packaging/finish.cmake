# What CPack 3.25 cannot say of a package, run by it for those it has built:
# no scripts run as root where the trigger of the dynamic linker's cache does
# the work, and the libraries of two architectures may stand side by side.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(tree "${package}.tree")
  execute_process(COMMAND dpkg-deb -R "${package}" "${tree}"
    COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${tree}/DEBIAN/postinst" "${tree}/DEBIAN/postrm")
  if(NOT EXISTS "${tree}/usr/bin")
    file(READ "${tree}/DEBIAN/control" control)
    string(STRIP "${control}" control)
    file(WRITE "${tree}/DEBIAN/control" "${control}\nMulti-Arch: same\n")
  endif()
  execute_process(COMMAND dpkg-deb --root-owner-group -b "${tree}" "${package}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE "${tree}")
endforeach()
