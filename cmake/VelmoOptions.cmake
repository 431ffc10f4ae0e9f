# What a build may leave out or turn on. Whoever embeds the project with
# add_subdirectory gets the library alone.
option(VELMO_BUILD_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(VELMO_BUILD_HOST "Build the script host over Lua 5.4"
  ${PROJECT_IS_TOP_LEVEL})
option(VELMO_BUILD_TOOLS "Build the command-line tool"
  ${PROJECT_IS_TOP_LEVEL})
option(VELMO_BUILD_EXAMPLES "Build the example programs"
  ${PROJECT_IS_TOP_LEVEL})
# The presets set it: elsewhere a newer compiler's new warning must not break a
# distribution's build.
option(VELMO_WARNINGS_AS_ERRORS "Fail on a warning" OFF)
option(VELMO_BUILD_BENCH "Build the benchmarks" OFF)
option(VELMO_BUILD_FUZZERS "Build the fuzz targets (needs Clang)" OFF)
set(VELMO_SANITIZE "" CACHE STRING
  "Sanitizers to build with, as for -fsanitize (address,undefined)")

# The folder of platform/ that implements the machine.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  set(velmo_default_platform linux)
else()
  set(velmo_default_platform unsupported)
endif()
set(VELMO_PLATFORM "${velmo_default_platform}" CACHE STRING
  "The folder of platform/ that implements the machine")

# The library and its helper programs are together, in the build tree as in the
# installed one: the library finds them by its own location.
set(VELMO_LIBRARY_DIR "${PROJECT_BINARY_DIR}/lib")

option(VELMO_INSTALL "Install the library and what belongs to it"
  ${PROJECT_IS_TOP_LEVEL})

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# The interpreter is not asked where: a package is built for another machine's.
set(VELMO_PYTHON_DIR "lib/python3/dist-packages" CACHE STRING
  "The folder of Python packages, below the prefix")
