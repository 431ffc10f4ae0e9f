# Everything that is installed belongs to one component. The application's
# folder and the framework with its tool lie beside the library, where the
# client looks first.
set(velmo_viewer_prefix "${CMAKE_INSTALL_LIBDIR}/${VELMO_VIEWER_APP}")
install(TARGETS HelpViewer COMPONENT viewer
  RUNTIME DESTINATION "${velmo_viewer_prefix}/bin")
install(TARGETS velmohelp-viewer-window COMPONENT viewer
  RUNTIME DESTINATION "${velmo_viewer_prefix}/libexec")
install(TARGETS QTV COMPONENT viewer
  RUNTIME DESTINATION "${CMAKE_INSTALL_LIBDIR}/${VELMO_VIEWER_TOOL_DIR}")

# The command for people. The link is relative, so that a tree that was unpacked
# elsewhere still works.
file(RELATIVE_PATH velmo_viewer_link
  "/${CMAKE_INSTALL_BINDIR}" "/${velmo_viewer_prefix}/bin/HelpViewer")
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/package")
file(CREATE_LINK "${velmo_viewer_link}"
  "${PROJECT_BINARY_DIR}/package/velmohelp-viewer" SYMBOLIC)
install(FILES "${PROJECT_BINARY_DIR}/package/velmohelp-viewer"
  DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT viewer)

install(DIRECTORY "${PROJECT_BINARY_DIR}/viewer/share/locale"
  DESTINATION "${CMAKE_INSTALL_DATADIR}" COMPONENT viewer)
install(FILES data/com.velmo.HelpViewer.desktop
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT viewer)
install(FILES data/com.velmo.HelpViewer.metainfo.xml
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT viewer)
install(FILES data/com.velmo.HelpViewer.svg
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
  COMPONENT viewer)

set(VELMO_VIEWER_PROGRAM
  "${CMAKE_INSTALL_FULL_LIBDIR}/${VELMO_VIEWER_APP}/libexec/velmohelp-viewer-window")
configure_file(data/com.velmo.HelpViewer.service.in
  "${PROJECT_BINARY_DIR}/package/com.velmo.HelpViewer.service" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/package/com.velmo.HelpViewer.service"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/dbus-1/services" COMPONENT viewer)

find_program(VELMO_GZIP gzip REQUIRED)
execute_process(
  COMMAND "${VELMO_GZIP}" -9nc
    "${CMAKE_CURRENT_SOURCE_DIR}/data/velmohelp-viewer.1"
  OUTPUT_FILE "${PROJECT_BINARY_DIR}/package/velmohelp-viewer.1.gz"
  COMMAND_ERROR_IS_FATAL ANY)
install(FILES "${PROJECT_BINARY_DIR}/package/velmohelp-viewer.1.gz"
  DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT viewer)
