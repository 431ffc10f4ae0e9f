# velmo_install(ARGUMENT...): installs BUILD.
function(velmo_install)
  execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" ${ARGN}
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# velmo_installed_files(VARIABLE): the files below STAGE.
function(velmo_installed_files out)
  file(GLOB_RECURSE files "${STAGE}/*")
  set(${out} "${files}" PARENT_SCOPE)
endfunction()
