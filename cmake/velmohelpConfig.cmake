# The library needs no other package: its callers link nothing else.
include("${CMAKE_CURRENT_LIST_DIR}/velmohelpTargets.cmake")
