# The table of file types as a source, for programs that put it onto a machine that they make.
#
# QUILLVANE_TYPE_TABLE         the table's file
# QUILLVANE_TYPE_TABLE_SOURCE  defines quillvane::factory_type_table

set(QUILLVANE_TYPE_TABLE ${PROJECT_SOURCE_DIR}/data/tmptype.orv)
set(QUILLVANE_TYPE_TABLE_SOURCE ${CMAKE_BINARY_DIR}/factory_type_table.cpp)

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${QUILLVANE_TYPE_TABLE})
file(READ ${QUILLVANE_TYPE_TABLE} type_table_bytes HEX)
string(REGEX REPLACE "(..)" "\\\\x\\1" type_table_text "${type_table_bytes}")
# A literal a record: compilers want to be spared long ones.
string(REGEX REPLACE "(................................................................................)"
  "\\1\"\n    \"" type_table_text "${type_table_text}")
file(CONFIGURE OUTPUT ${QUILLVANE_TYPE_TABLE_SOURCE} CONTENT
"// Made from data/tmptype.orv.
#include \"machine/factory_type_table.h\"

namespace quillvane {

std::string_view factory_type_table() {
  static constexpr std::string_view kTable =
    \"@type_table_text@\";
  return kTable;
}

}  // namespace quillvane
" @ONLY)
