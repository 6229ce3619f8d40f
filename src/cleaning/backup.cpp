#include "cleaning/backup.h"

#include <string>

#include "scan/junk_page.h"
#include "support/date_text.h"
#include "support/file_date.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/text_file.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kHistoryKey = "software\\Quillvane\\Tidewrack Deluxe\\junkscan";

// Date and time of the backup: "21_11_2026_10.00.00".
std::string stamp_of(const DateTime& now) {
  return date_text(now, "dd_mm_yyyy") + "_" + time_text(now, "hh.mm.ss");
}

// The path up to and including its last backslash.
std::string GetFileFolder(const std::string& path) { return path.substr(0, path.rfind('\\') + 1); }

// The path behind its last backslash.
std::string GetFileName(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

// Notes the backup in the history. "file" holds 0: it is written before anything is copied. A
// number that could not be read is not begun anew: then nothing is written.
RegistryWrite write_history(Registry& registry, const std::string& stamp) {
  const std::string key = kHistoryKey;
  const RegistryText before = ReadRegistryString32(registry, Hive::kLocalMachine, key, "cnt");
  if (!before.problem.empty()) return RegistryWrite::failure(before.problem);
  const std::string count = number_text(Val(before.text) + 1);
  RegistryWrite result;
  const auto write = [&](const std::string& sub_key, const std::string& name,
                         const std::string& text) {
    const RegistryWrite written =
        WriteRegistryString(registry, Hive::kLocalMachine, sub_key, name, text);
    if (!written) result = written;  // the next one is tried all the same
  };
  write(key, "cnt", count);
  write(key + "\\dates", count, stamp);
  write(key + "\\file", stamp, "0");
  return result;
}

}  // namespace

void back_up(JunkPage& page) {
  double files = 0;
  double bytes = 0;
  const std::string stamp =
      stamp_of(calendar_date(page.platform().loop.local_now()).value_or(DateTime{}));
  FileSystem& file_system = page.platform().files;
  std::string folder = page.session.data_file("backup");
  for (const std::string& deeper : {std::string(), std::string("\\junk"), "\\" + stamp}) {
    folder += deeper;
    static_cast<void>(file_system.make_folder(folder));  // the first two are there after one run
  }
  const RegistryWrite noted = write_history(page.platform().registry, stamp);
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
