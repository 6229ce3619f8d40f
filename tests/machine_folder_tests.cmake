# Tests that work on a machine folder, and so cannot run on Windows: those of src/platform/folder,
# and each that includes something of it, of tests/support/temp_* or, of tests/support, a header
# that does so in turn.

function(needs_machine_folder source result)
  set(needs FALSE)
  file(STRINGS ${source} includes REGEX "^#include \"(platform/folder|tests/support)/")
  foreach(line ${includes})
    string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" header "${line}")
    if(NOT needs AND header MATCHES "^(platform/folder|tests/support/temp_)")
      set(needs TRUE)
    elseif(NOT needs)
      needs_machine_folder(${PROJECT_SOURCE_DIR}/${header} needs)
    endif()
  endforeach()
  set(${result} ${needs} PARENT_SCOPE)
endfunction()

# Takes those tests out of the list `name`.
function(leave_out_machine_folder_tests name)
  set(kept)
  foreach(source ${${name}})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    needs_machine_folder(${source} needs)
    if(NOT needs AND NOT source MATCHES "/platform/folder/")
      list(APPEND kept ${source})
    endif()
  endforeach()
  set(${name} ${kept} PARENT_SCOPE)
endfunction()
