# quillvane_register_tests(PROGRAM SOURCES...) tells ctest about a test program.
#
# ctest knows each suite, whose names are read from the sources; the program prints a line for each
# test of it. One process a test would cost ten times the time of the tests themselves: starting a
# program under Wine or under the sanitizers takes longer than most of them.

function(quillvane_register_tests program)
  set(suites)
  foreach(source ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} lines REGEX "^(TYPED_)?TEST(_F|_P)?\\(")
    foreach(line ${lines})
      string(REGEX REPLACE "^[A-Z_]+\\(([A-Za-z0-9_]+).*" "\\1" suite "${line}")
      list(APPEND suites ${suite})
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES suites)
  foreach(suite ${suites})
    # The suite itself, its instances with parameters and those with types.
    add_test(NAME ${program}.${suite}
      COMMAND ${program} "--gtest_filter=${suite}.*:*/${suite}.*:${suite}/*.*")
    # A filter that picks nothing would pass.
    set_tests_properties(${program}.${suite} PROPERTIES TIMEOUT 300
      FAIL_REGULAR_EXPRESSION "Running 0 tests")
    if(WIN32)
      # The suites of one program share the PC they work on, so they run one after the other.
      set_tests_properties(${program}.${suite} PROPERTIES
        RESOURCE_LOCK ${program} FIXTURES_REQUIRED wine)
    endif()
  endforeach()
endfunction()
