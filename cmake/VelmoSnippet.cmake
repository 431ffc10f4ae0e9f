# velmo_extract_snippet(DOCUMENT LANGUAGE FILE): writes the document's first
# fenced block of a language to FILE in the current build folder, and again
# whenever the document changes.
function(velmo_extract_snippet document language file)
  set(path "${PROJECT_SOURCE_DIR}/${document}")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${path}")
  file(READ "${path}" text)
  if(NOT text MATCHES "\n```${language}\n([^`]*\n)```\n")
    message(FATAL_ERROR "${document} has no block of ${language}")
  endif()
  file(CONFIGURE OUTPUT "${file}" CONTENT "${CMAKE_MATCH_1}" @ONLY)
endfunction()
