# The library needs no other package: what it links is its own affair.
include("${CMAKE_CURRENT_LIST_DIR}/velmohelpTargets.cmake")
