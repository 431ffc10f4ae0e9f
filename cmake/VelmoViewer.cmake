# Whether the help viewer is built: off unless asked for, since its libraries
# take a desktop with them.
option(VELMO_BUILD_VIEWER "Build the help viewer" OFF)
if(VELMO_BUILD_VIEWER)
  find_package(PkgConfig REQUIRED)
  pkg_check_modules(VELMO_VIEWER_GIO REQUIRED IMPORTED_TARGET gio-unix-2.0)
  pkg_check_modules(VELMO_VIEWER_SQLITE REQUIRED IMPORTED_TARGET sqlite3)
  pkg_check_modules(VELMO_VIEWER_ADWAITA REQUIRED IMPORTED_TARGET libadwaita-1)
  pkg_check_modules(VELMO_VIEWER_WEBKIT REQUIRED IMPORTED_TARGET webkitgtk-6.0)
  find_program(VELMO_GLIB_COMPILE_RESOURCES glib-compile-resources REQUIRED)
  find_program(VELMO_MSGFMT msgfmt REQUIRED)
endif()

# A prefix laid out as the installed one, so that each part finds the others.
set(VELMO_VIEWER_DIR "${PROJECT_BINARY_DIR}/viewer/lib")
set(VELMO_VIEWER_APP velmohelp-viewer/HelpViewer.app)
set(VELMO_VIEWER_TOOL_DIR
  com.velmo.vxclientframework.framework/Versions/A/Resources)
