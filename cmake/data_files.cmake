# The files of data/ that ship beside the program, and the same as a source for the programs that
# make machines:
#
# QUILLVANE_DATA_FILES   the files, each with its place below data/ as below the program's folder
# QUILLVANE_DATA_SOURCE  defines data_files() of machine/data_files.h

set(QUILLVANE_DATA ${PROJECT_SOURCE_DIR}/data)
file(GLOB QUILLVANE_DATA_FILES CONFIGURE_DEPENDS RELATIVE ${QUILLVANE_DATA}
  ${QUILLVANE_DATA}/lang/*.lang ${QUILLVANE_DATA}/*.orv)
set(QUILLVANE_DATA_SOURCE ${CMAKE_BINARY_DIR}/data_files.cpp)

set(rows)
foreach(file ${QUILLVANE_DATA_FILES})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${QUILLVANE_DATA}/${file})
  file(READ ${QUILLVANE_DATA}/${file} bytes HEX)
  string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
  string(REPLACE "/" "\\\\" name "${file}")
  string(APPEND rows "    {\"${name}\", \"${bytes}\"sv},\n")
endforeach()
file(CONFIGURE OUTPUT ${QUILLVANE_DATA_SOURCE} CONTENT "// Made from the files of data/.
#include \"machine/data_files.h\"

namespace quillvane {

using namespace std::string_view_literals;

std::span<const DataFile> data_files() {
  static constexpr DataFile kFiles[] = {
${rows}  };
  return kFiles;
}

}  // namespace quillvane
" @ONLY)
