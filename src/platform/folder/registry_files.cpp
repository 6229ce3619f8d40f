#include "platform/folder/registry_files.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "platform/folder/host_file.h"
#include "platform/folder/host_path.h"

namespace quillvane {

namespace {

namespace fs = std::filesystem;

// The end of a journal that belongs to a change of several databases. It names one more file, which
// the database may then remove. The program makes no such changes.
constexpr std::string_view kEndOfSharedJournal = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

bool ends_as_shared_journal(const fs::path& journal) {
  std::ifstream file(journal, std::ios::binary);
  file.seekg(-static_cast<std::streamoff>(kEndOfSharedJournal.size()), std::ios::end);
  std::string end(kEndOfSharedJournal.size(), '\0');
  file.read(end.data(), static_cast<std::streamsize>(end.size()));
  return file.good() && end == kEndOfSharedJournal;
}

}  // namespace

std::optional<std::string> registry_files_problem(const std::string& file) {
  const fs::path store = host_path(file);
  std::error_code failed;
  const fs::file_status status = fs::status(store, failed);
  if (fs::exists(status) && !fs::is_regular_file(status)) return "is no file";
  for (const char* part : {"-journal", "-wal", "-shm"}) {
    fs::path beside = store;
    beside += part;
    const fs::file_status found = fs::symlink_status(beside, failed);
    if (!fs::exists(found)) continue;
    // Another program that writes now may have taken its journal away in the meantime.
    if (!fs::is_regular_file(found) || host_link_count(file + part).value_or(1) != 1) {
      return std::string(part) + " beside it is no file of its own";
    }
    if (ends_as_shared_journal(beside)) return std::string(part) + " beside it names other files";
  }
  return std::nullopt;
}

}  // namespace quillvane
