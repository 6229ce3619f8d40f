# Tests that are not run on Windows.
#
# Left out are those of what is Linux' own (platform/folder/posix, files named *_posix_test.cpp, and
# each that includes a header of either, directly or through tests/support), and those that stage a
# whole machine to test behaviour: that is the same code on both systems, and the contract and the
# tests of the machine folder itself are run on Windows too.

function(is_left_out_on_windows source result)
  set(left_out FALSE)
  if(source MATCHES "/posix/|_posix_test\\.cpp$")
    set(left_out TRUE)
  endif()
  file(STRINGS ${source} includes REGEX "^#include [<\"]")
  foreach(line ${includes})
    string(REGEX REPLACE "^#include [<\"]([^>\"]+).*" "\\1" header "${line}")
    if(header MATCHES "^(sys|linux)/|^(fcntl|unistd|dirent)\\.h$|/posix/|^tests/support/temp_.*machine")
      set(left_out TRUE)
    elseif(NOT left_out AND header MATCHES "^tests/support/")
      is_left_out_on_windows(${PROJECT_SOURCE_DIR}/${header} left_out)
    endif()
  endforeach()
  set(${result} ${left_out} PARENT_SCOPE)
endfunction()

# Takes those tests out of the list `name`.
function(leave_out_on_windows name)
  set(kept)
  foreach(source ${${name}})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    is_left_out_on_windows(${source} left_out)
    if(NOT left_out)
      list(APPEND kept ${source})
    endif()
  endforeach()
  set(${name} ${kept} PARENT_SCOPE)
endfunction()
