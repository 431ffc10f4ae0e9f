# velmo_add_bare_test(NAME SOURCE...): a GoogleTest program without the
# library's objects, each of its tests one test of CTest; a test names what it
# is about.
function(velmo_add_bare_test name)
  add_executable(${name} ${ARGN})
  velmo_configure(${name})
  target_link_libraries(${name} PRIVATE
    velmohelp_test_support velmohelp_oracles velmohelp_scripted
    GTest::gmock_main)
  velmo_precompile(${name})
  gtest_discover_tests(${name} TEST_PREFIX "${name}." NO_PRETTY_VALUES
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# velmo_add_test(NAME SOURCE...): the same over the library's objects. The
# exported functions run on the machine that tests/support/this_machine.h sets.
function(velmo_add_test name)
  velmo_add_bare_test(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE
    velmohelp_objects velmohelp_test_machine)
endfunction()

# velmo_precompile(TARGET): takes the test framework's headers from the copy
# that tests/support has compiled, which halves the time of a test's file. The
# target's flags must be those of every test.
function(velmo_precompile target)
  target_precompile_headers(${target} REUSE_FROM velmohelp_test_support)
endfunction()
