# quillvane_register_tests(PROGRAM SOURCES...) tells ctest about a test program.
#
# Natively ctest knows each test by asking the program. Starting a Windows program under Wine takes
# far longer than most tests, so there ctest knows each suite, whose names are read from the
# sources; the program prints a line for each test of it.

include(GoogleTest)

function(quillvane_register_tests program)
  if(NOT WIN32)
    gtest_discover_tests(${program} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
      PROPERTIES TIMEOUT 120)
    return()
  endif()
  set(suites)
  foreach(source ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} lines REGEX "^TEST(_F|_P)?\\(")
    foreach(line ${lines})
      string(REGEX REPLACE "^TEST[_FP]*\\(([A-Za-z0-9_]+).*" "\\1" suite "${line}")
      list(APPEND suites ${suite})
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES suites)
  foreach(suite ${suites})
    add_test(NAME ${program}.${suite}
      COMMAND ${program} "--gtest_filter=${suite}.*:*/${suite}.*")
    # A filter that picks nothing would pass. The suites of one program share the machine they work
    # on, so they run one after the other.
    set_tests_properties(${program}.${suite} PROPERTIES TIMEOUT 300
      FAIL_REGULAR_EXPRESSION "Running 0 tests" RESOURCE_LOCK ${program}
      FIXTURES_REQUIRED wine)
  endforeach()
endfunction()
