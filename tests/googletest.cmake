# GoogleTest: Debian's library natively, built from Debian's source for Windows programs.
# Either way the targets are GTest::gtest_main and GTest::gmock.

if(NOT WIN32)
  find_package(GTest REQUIRED)
  return()
endif()

set(CMAKE_POLICY_DEFAULT_CMP0077 NEW)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
foreach(library gtest gtest_main gmock)
  # Its code and its headers are not ours to warn about.
  target_compile_options(${library} PRIVATE -w)
  get_target_property(includes ${library} INTERFACE_INCLUDE_DIRECTORIES)
  set_target_properties(${library} PROPERTIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${includes}")
  if(NOT TARGET GTest::${library})
    add_library(GTest::${library} ALIAS ${library})
  endif()
endforeach()
