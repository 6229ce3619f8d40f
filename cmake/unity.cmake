# Compiling many sources at once: most of a source's time goes into the headers and templates that it
# shares with its neighbours.
#
# It halves the time of a build from nothing and makes the one after an edit longer, so ./test asks
# for it in a build tree that it makes, and the presets do not.

option(QUILLVANE_UNITY "Compile many sources at once: for a build from nothing" OFF)

# quillvane_unity(TARGET) divides the sources of TARGET, as they are now, into groups in which no
# source changes what another means: see unity_groups.awk.
function(quillvane_unity target)
  if(NOT QUILLVANE_UNITY)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  list(TRANSFORM sources PREPEND "${folder}/" REGEX "^[^/]")
  file(GLOB_RECURSE headers ${PROJECT_SOURCE_DIR}/src/*.h ${PROJECT_SOURCE_DIR}/tests/*.h
    ${PROJECT_SOURCE_DIR}/bench/*.h)
  execute_process(COMMAND awk -f ${PROJECT_SOURCE_DIR}/cmake/unity_groups.awk ${headers} ${sources}
    OUTPUT_VARIABLE groups OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "\n" ";" groups "${groups}")
  while(groups)
    list(POP_FRONT groups group source)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${target}_${group})
  endwhile()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # It takes each source but the first for a header, in which no class should build on a nameless one.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    if(WIN32)
      target_compile_options(${target} PRIVATE -Wa,-mbig-obj)  # more than 32767 sections
    endif()
  endif()
endfunction()
