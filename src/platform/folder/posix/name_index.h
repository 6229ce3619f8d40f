// Finds names of folders without regard to case, and knows which handles and names stayed as they
// were. It keeps the names of folders in which a name was looked for, and has every change of them
// told, so that a folder is read once however many names are looked for in it.
//
// Where changes are not told (see FolderWatch) each look-up reads the folder anew.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include "platform/folder/posix/folder_names.h"
#include "platform/folder/posix/folder_watch.h"
#include "platform/folder/posix/host_status.h"

namespace quillvane {

class NameIndex {
 public:
  // The stored name that equals `name` but for case, the first by its bytes that is there and no
  // exact match. Nothing, with errno as DriveFolder has it, without one; also for a name that was
  // forgotten. Threads may look up at once.
  [[nodiscard]] std::optional<std::string> other_case(int folder, const std::string& name);

  // Tells that the file stored as `name` is about to be removed and was meant by `spelt`. If the
  // folder has another that differs only by case, both spellings shall not lead to that one from
  // now on: who has removed "A.tmp" does not mean "a.tmp" by it.
  void forget_if_twin(int folder, const std::string& name, const std::string& spelt);

  // What was so far, for who keeps something open: neither number goes down.
  struct State {
    std::uint64_t moves = 0;     // changes of the places of watched folders
    std::uint64_t arrivals = 0;  // new names in watched folders
    friend bool operator==(const State&, const State&) = default;
  };
  // Takes all changes in.
  [[nodiscard]] State state();

  // Has the changes of an open folder counted from now on. False when they are not told.
  [[nodiscard]] bool watch(int folder);

  // How often the names of a folder were read.
  [[nodiscard]] std::size_t readings() const { return readings_; }

  // What is kept at most; beyond it, all is given up and begun anew.
  static constexpr std::size_t kMostFolders = 2048;
  static constexpr std::size_t kMostBytes = std::size_t{64} << 20U;  // besides the folder read last

 private:
  struct Folder {
    int watch = -1;
    std::optional<FolderNames> names;  // read when they are first needed
  };
  struct Hash {
    std::size_t operator()(const HostIdentity& id) const {
      return id.inode * 0x9E3779B97F4A7C15U ^ id.device_minor;
    }
  };

  void catch_up();
  void take_in(const FolderChange& change);
  void give_up();
  // The folder's entry; it is watched from the first call on, where it can be.
  [[nodiscard]] Folder* entry_of(int folder);
  // The folder's names, as they are now where changes are told, otherwise as they were when they
  // were first read. Null when they cannot be read.
  [[nodiscard]] const FolderNames* known_names(int folder);
  [[nodiscard]] std::optional<FolderNames> read_names(int folder);

  std::mutex mutex_;  // of all that follows
  FolderWatch watch_;
  std::unordered_map<HostIdentity, Folder, Hash> folders_;
  std::unordered_map<int, HostIdentity> watched_;
  std::set<std::pair<HostIdentity, std::string>> forgotten_;
  std::size_t bytes_ = 0;
  std::size_t readings_ = 0;
  State state_;
};

// The name as stored, for a name in any case: itself when an entry is named exactly so, otherwise
// what the index finds. Nothing when there is none or when that cannot be told; errno has the
// reason.
[[nodiscard]] std::optional<std::string> stored_name(int folder, const std::string& name,
                                                     NameIndex& index);

}  // namespace quillvane
