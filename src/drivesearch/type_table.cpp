#include "drivesearch/type_table.h"

#include <string>

namespace quillvane {

void put_type_table_in_place(const Session& session) {
  FileSystem& files = session.platform.files;
  const std::string table = session.data_file("tmptype.txt");
  const std::string factory_table = session.data_file("tmptype.orv");
  if (!files.read_file(table).is_missing()) return;  // one that cannot be read is the user's too
  const auto content = files.read_file(factory_table);
  // The factory table is only given up once its copy is there.
  if (content && files.write_file(table, *content)) {
    static_cast<void>(files.remove_file(factory_table));
  }
}

}  // namespace quillvane
