# Compiler settings that all targets share.

find_program(CCACHE ccache)
if(CCACHE)
  # Without this it passes over every source that has precompiled headers.
  set(launcher ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  set(CMAKE_C_COMPILER_LAUNCHER ${launcher})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${launcher})
endif()

add_library(quillvane_settings INTERFACE)
target_include_directories(quillvane_settings INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(quillvane_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
target_compile_definitions(quillvane_settings INTERFACE QUILLVANE_VERSION="${PROJECT_VERSION}")

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps in std::string's operator+ that are not there (its bug 105651).
  target_compile_options(quillvane_settings INTERFACE -Wno-restrict)
  if(WIN32)
    # And overflows, where the library's headers are precompiled.
    target_compile_options(quillvane_settings INTERFACE
      -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
  endif()
endif()

if(QUILLVANE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  # Single executables that need nothing installed, the UTF-8 text inside them as it stands.
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
  add_link_options(-static)
endif()

# quillvane_library(NAME FOLDERS... [LINK libraries...]) makes a static library of the sources of
# folders of src/; tests that lie beside the sources are left to the test program.
function(quillvane_library name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  list(TRANSFORM ARG_UNPARSED_ARGUMENTS REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/src/\\1/*.cpp"
       OUTPUT_VARIABLE patterns)
  file(GLOB sources CONFIGURE_DEPENDS ${patterns})
  list(FILTER sources EXCLUDE REGEX "_test\\.cpp$")
  add_library(${name} STATIC ${sources})
  quillvane_unity(${name})
  target_link_libraries(${name} PUBLIC quillvane_settings ${ARG_LINK})
endfunction()
