#include "cleaning/backup.h"

#include <string>

#include "cleaning/backup_history.h"
#include "scan/junk_page.h"
#include "support/file_date.h"
#include "support/text.h"
#include "support/text_file.h"

namespace quillvane {

namespace {

constexpr const char* kHistoryKey = "software\\Quillvane\\Tidewrack Deluxe\\junkscan";

// The path up to and including its last backslash.
std::string GetFileFolder(const std::string& path) { return path.substr(0, path.rfind('\\') + 1); }

// The path behind its last backslash.
std::string GetFileName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

}  // namespace

void back_up(JunkPage& page) {
  double files = 0;
  double bytes = 0;
  const std::string stamp =
      backup_stamp(calendar_date(page.platform().loop.local_now()).value_or(DateTime{}));
  FileSystem& file_system = page.platform().files;
  std::string folder = page.session.data_file("backup");
  for (const std::string& deeper : {std::string(), std::string("\\junk"), "\\" + stamp}) {
    folder += deeper;
    static_cast<void>(file_system.make_folder(folder));  // the first two are there after one run
  }
  // The counter of the files stands at 0: nothing has been copied yet.
  const RegistryWrite noted = note_backup(page.platform().registry, kHistoryKey, stamp, "0");
  if (!noted) page.session.tell_problem("history of backups", "not written: " + noted.problem());

  std::string index;
  page.Bar2.set_range(1, page.view1.count());
  page.Bar2.show();
  for (int row = 1; row <= page.view1.count(); ++row) {
    page.Bar2.set_value(row);
    if (!page.view1.checked(row)) continue;
    const std::string path = page.view1.text(row);
    index += GetFileFolder(path) + "," + GetFileName(path) + "," + path + "\r\n";
    const std::string copy = folder + "\\" + GetFileName(path);
    static_cast<void>(file_system.copy_file(path, copy));  // it stands in the index all the same
    files += 1;
    bytes += static_cast<double>(file_system.file_size(path).value_or(0));
  }
  static_cast<void>(write_text_file(page.platform(), folder + ".txt", index));
  page.txtfilecont.set_text(number_text(files));
  page.txtfilesize.set_text(number_text(bytes));
  page.Bar2.hide();
}

}  // namespace quillvane
