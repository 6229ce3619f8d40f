# The bitmaps of data/pictures, drawn at build time, and their list among a program's resources.
#
# QUILLVANE_PICTURES        the folder of the bitmaps
# QUILLVANE_PICTURES_STAMP  a file that is newer than all of them
# QUILLVANE_PICTURES_RC     the resources: RCDATA "TITLE_CLOSE_16" is title-close-16.png

set(QUILLVANE_PICTURES ${CMAKE_BINARY_DIR}/pictures)
set(QUILLVANE_PICTURES_STAMP ${QUILLVANE_PICTURES}/drawn)
set(QUILLVANE_PICTURES_RC ${CMAKE_BINARY_DIR}/pictures.rc)

file(GLOB picture_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/pictures/*.svg)
add_custom_command(OUTPUT ${QUILLVANE_PICTURES_STAMP}
  COMMAND ${PROJECT_SOURCE_DIR}/tools/draw_pictures.sh ${QUILLVANE_PICTURES}
  COMMAND ${CMAKE_COMMAND} -E touch ${QUILLVANE_PICTURES_STAMP}
  DEPENDS ${picture_sources} ${PROJECT_SOURCE_DIR}/tools/draw_pictures.sh
  COMMENT "Drawing the pictures")

# Names alone, without folders, so that the same resources come out wherever they are built.
set(picture_list "// Made from the names in data/pictures.\n1 ICON \"quillvane.ico\"\n")
foreach(source ${picture_sources})
  get_filename_component(name ${source} NAME_WE)
  if(name MATCHES "^category-|^title-|^language-|^row-")
    set(sizes 16 24 32)
  elseif(name MATCHES "^toolbar-")
    set(sizes 24 36 48)
  else()
    continue()
  endif()
  string(TOUPPER ${name} resource)
  string(REPLACE "-" "_" resource ${resource})
  foreach(size ${sizes})
    string(APPEND picture_list "${resource}_${size} RCDATA \"${name}-${size}.png\"\n")
  endforeach()
endforeach()
file(CONFIGURE OUTPUT ${QUILLVANE_PICTURES_RC} CONTENT "${picture_list}" @ONLY)
