# velmo_add_test(NAME SOURCE...): a GoogleTest program over the library's
# objects, each of its tests one test of CTest. The exported functions run on
# the machine that tests/support/this_machine.h sets.
function(velmo_add_test name)
  add_executable(${name} ${ARGN})
  velmo_configure(${name})
  target_link_libraries(${name} PRIVATE
    velmohelp_objects velmohelp_test_machine GTest::gmock_main)
  gtest_discover_tests(${name} TEST_PREFIX "${name}." NO_PRETTY_VALUES
    DISCOVERY_TIMEOUT 60)
endfunction()

# velmo_add_bare_test(NAME SOURCE...): a GoogleTest program without the
# library's objects; a test names what it is about.
function(velmo_add_bare_test name)
  add_executable(${name} ${ARGN})
  velmo_configure(${name})
  target_include_directories(${name} PRIVATE
    "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/include")
  target_link_libraries(${name} PRIVATE GTest::gmock_main)
  gtest_discover_tests(${name} TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60
    NO_PRETTY_VALUES PROPERTIES TIMEOUT 60)
endfunction()
