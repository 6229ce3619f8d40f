# SQLite: Debian's library natively, built from Debian's source for Windows programs.
# Either way the target is SQLite::SQLite3.

if(NOT WIN32)
  find_package(SQLite3 REQUIRED)
  return()
endif()

set(sqlite ${PROJECT_SOURCE_DIR}/build/sqlite-source)
if(NOT EXISTS ${sqlite}/sqlite3.c)
  message(FATAL_ERROR "build/sqlite-source/sqlite3.c is missing: run tools/prepare_sqlite.sh")
endif()
add_library(quillvane_sqlite STATIC ${sqlite}/sqlite3.c)
target_include_directories(quillvane_sqlite SYSTEM PUBLIC ${sqlite})
# Its code is not ours to warn about. A connection is used by one thread at a time.
target_compile_options(quillvane_sqlite PRIVATE -w -O1)
target_compile_definitions(quillvane_sqlite PRIVATE
  SQLITE_THREADSAFE=2 SQLITE_OMIT_LOAD_EXTENSION)
add_library(SQLite::SQLite3 ALIAS quillvane_sqlite)
