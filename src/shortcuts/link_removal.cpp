#include "shortcuts/link_removal.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "cleaning/backup_history.h"
#include "support/file_date.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/text_file.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kHistoryKey = "software\\Quillvane\\Tidewrack Deluxe\\shortscan";
constexpr const char* kStatisticsKey = "software\\Quillvane\\Tidewrack Deluxe\\statics\\shortcuts";
constexpr const char* kQuestion = "Are you sure you want to remove selected Shortcut(s) ?";
// Another extension than a link's, so that the shell does not take the copies for links.
constexpr const char* kCopyExtension = ".lnk2";

bool has_ticked_row(ResultPage& results) {
  for (int row = 1; row <= results.view1.count(); ++row) {
    if (!results.view1.checked(row)) continue;
    results.somechecked = true;
    return true;
  }
  return false;
}

bool says_yes(const Platform& platform) {
  return platform.dialogs.message_box(kQuestion, kRemoveLinksTitle, kBoxYesNo | kBoxIconQuestion) ==
         Answer::kYes;
}

// A row's name in a path, so that the copy lies in the backup's folder whatever the name is.
std::string name_in_path(std::string name) {
  constexpr std::string_view kNotInNames = "\\/:*?\"<>|";
  for (char& c : name) {
    if (kNotInNames.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ') {
      c = '_';
    }
  }
  return name;
}

std::string line_of(const ResultPage& results, int row) {
  return results.view1.text(row) + "," + results.link_path(row) + "\r\n";
}

// The folder of the run; what cannot be made is passed over.
std::string make_backup_folder(const Session& session, const std::string& stamp) {
  std::string folder = session.data_file("backup");
  for (const std::string& deeper : {std::string(), std::string("\\short"), "\\" + stamp}) {
    folder += deeper;
    static_cast<void>(session.platform.files.make_folder(folder));
  }
  return folder;
}

// One run: the list beside its folder names from the start what is going to go, and at the end what
// it came to.
class BackupRun {
 public:
  BackupRun(ResultPage& results, std::string folder, UncopiedLinks uncopied)
      : results_(results), folder_(std::move(folder)), uncopied_(uncopied) {}

  std::vector<RemovedLink> run() {
    std::string lines;
    for (int row = 1; row <= results_.view1.count(); ++row) {
      if (results_.view1.checked(row)) lines += line_of(results_, row);
    }
    write_list(lines);
    for (int row = 1; row <= results_.view1.count(); ++row) {
      results_.session.do_events();
      if (results_.session.cleaning_ended()) break;
      if (row > results_.view1.count() || !results_.view1.checked(row)) continue;
      if (!remove_row(row)) break;
    }
    if (done_lines_ != lines) write_list(done_lines_);
    return std::move(links_);
  }

 private:
  void write_list(const std::string& lines) {
    static_cast<void>(write_text_file(results_.platform(), folder_ + ".txt", lines));
  }

  // False: the run ends here.
  bool remove_row(int row) {
    FileSystem& files = results_.platform().files;
    RemovedLink link{results_.link_path(row)};
    const std::string copy =
        folder_ + "\\" + name_in_path(results_.view1.text(row)) + kCopyExtension;
    link.copied = files.copy_file(link.path, copy);
    const bool goes = link.copied || uncopied_ == UncopiedLinks::kGo;
    if (goes) {
      done_lines_ += line_of(results_, row);
      static_cast<void>(files.set_attributes(link.path, kAttributeArchive));
      link.removed = files.remove_file(link.path) == RemoveResult::kRemoved;
    }
    links_.push_back(link);
    return goes;
  }

  ResultPage& results_;
  const std::string folder_;
  const UncopiedLinks uncopied_;
  std::string done_lines_;
  std::vector<RemovedLink> links_;
};

}  // namespace

std::vector<RemovedLink> remove_with_backup(ResultPage& results, UncopiedLinks uncopied) {
  Session& session = results.session;
  if (!has_ticked_row(results)) return {};
  if (!says_yes(session.platform)) {
    results.somechecked = false;
    return {};
  }
  const std::string stamp =
      backup_stamp(calendar_date(session.platform.loop.local_now()).value_or(DateTime{}));
  const std::string folder = make_backup_folder(session, stamp);
  const RegistryWrite noted = note_backup(session.platform.registry, kHistoryKey, stamp, stamp);
  if (!noted) session.tell_problem("history of backups", "not written: " + noted.problem());
  std::vector<RemovedLink> links = BackupRun(results, folder, uncopied).run();
  results.view1.clear();
  // One that could not be removed counts as well. Meant so.
  const auto taken = std::count_if(links.begin(), links.end(), [uncopied](const auto& link) {
    return link.copied || uncopied == UncopiedLinks::kGo;
  });
  add_to_removed_links(session, static_cast<int>(taken));
  results.somechecked = false;
  return links;
}

std::vector<RemovedLink> remove_every_link(ResultPage& results) {
  std::vector<RemovedLink> links;
  FileSystem& files = results.platform().files;
  for (int row = results.view1.count(); row >= 1; --row) {
    results.session.do_events();
    if (results.session.cleaning_ended()) break;
    if (row > results.view1.count()) continue;
    const std::string link = results.link_path(row);
    static_cast<void>(files.set_attributes(link, kAttributeArchive));
    links.push_back({link, false, files.remove_file(link) == RemoveResult::kRemoved});
    results.view1.remove(row);
  }
  return links;
}

void add_to_removed_links(Session& session, int count) {
  Registry& registry = session.platform.registry;
  const RegistryText before =
      ReadRegistryString32(registry, Hive::kLocalMachine, kStatisticsKey, "count");
  const RegistryWrite written =
      before.problem.empty() ? WriteRegistryString(registry, Hive::kLocalMachine, kStatisticsKey,
                                                   "count", number_text(Val(before.text) + count))
                             : RegistryWrite::failure(before.problem);
  if (!written) session.tell_problem("count of removed links", "not written: " + written.problem());
}

}  // namespace quillvane
