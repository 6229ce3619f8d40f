#include "drivesearch/type_table.h"

#include <string>

namespace quillvane {

void put_type_table_in_place(FileSystem& files, const Program& program) {
  const std::string table = program.data_file("tmptype.txt");
  const std::string factory_table = program.data_file("tmptype.orv");
  if (!files.read_file(table).is_missing()) return;  // one that cannot be read is the user's too
  const auto content = files.read_file(factory_table);
  // The factory table is only given up once its copy is there.
  if (content && files.write_file(table, *content)) {
    static_cast<void>(files.remove_file(factory_table));
  }
}

}  // namespace quillvane
