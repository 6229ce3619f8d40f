# Header-only libraries for Windows programs.
#
# Debian's headers of CLI11 and nlohmann-json serve any compiler, but /usr/include itself holds the
# headers of Linux and must not be seen by the Windows compiler. So a folder of the build tree gets
# links to just these two. Natively the compiler finds them by itself, and the folder is empty.

set(QUILLVANE_HEADER_ONLY_INCLUDE)
if(WIN32 AND NOT CMAKE_HOST_WIN32)
  set(QUILLVANE_HEADER_ONLY_INCLUDE ${CMAKE_BINARY_DIR}/header_only)
  file(MAKE_DIRECTORY ${QUILLVANE_HEADER_ONLY_INCLUDE})
  foreach(library CLI nlohmann)
    if(NOT IS_DIRECTORY /usr/include/${library})
      message(FATAL_ERROR "/usr/include/${library} is missing: install libcli11-dev and nlohmann-json3-dev")
    endif()
    file(CREATE_LINK /usr/include/${library} ${QUILLVANE_HEADER_ONLY_INCLUDE}/${library} SYMBOLIC)
  endforeach()
endif()
