# Library headers that many sources read are compiled once: without it they take more than half of
# the time of a build. Every source still includes what it uses; the release preset does without
# precompiled headers, so an include that is missing in src/ fails there.

option(QUILLVANE_PRECOMPILE "Precompile the library headers that many sources read" ON)

set(QUILLVANE_STANDARD_HEADERS
  <algorithm> <array> <chrono> <functional> <map> <memory> <optional> <span> <string>
  <string_view> <unordered_map> <utility> <vector>)

# quillvane_precompile(TARGET HEADERS...): the standard headers and these.
function(quillvane_precompile target)
  if(QUILLVANE_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${QUILLVANE_STANDARD_HEADERS} ${ARGN})
  endif()
endfunction()

# quillvane_precompile_as(TARGET OTHER): what OTHER precompiles; both have the same flags.
function(quillvane_precompile_as target other)
  if(QUILLVANE_PRECOMPILE AND NOT target STREQUAL other)
    target_precompile_headers(${target} REUSE_FROM ${other})
  endif()
endfunction()
