// The search of folders by several file patterns, which tells of each file as it is met. The search
// of whole drives, the custom entries of the scan and the shortcut window use it.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/folder_tree.h"
#include "scan/search.h"
#include "support/session.h"

namespace quillvane {

class clsdirsearch {
 public:
  // The session must outlive it.
  explicit clsdirsearch(Session& shared) : session_(shared) {}
  clsdirsearch(const clsdirsearch&) = delete;
  clsdirsearch& operator=(const clsdirsearch&) = delete;

  // Searches the folder `path` for files that match one of `patterns`, which are joined by "|": a
  // folder wholly before its subfolders, in it pattern after pattern, each file once. The message
  // loop is served for each entry of a folder. The disk is read once, when the search begins.
  // Without a drive (or a share) in it the path is not searched, and nothing is told.
  void findfiles(const std::string& path, const std::string& patterns);
  // Ends the search in progress at the next entry. The next findfiles takes no notice of it.
  void Cancel() { cancelled_ = true; }

  bool searchinsubfolders = true;
  bool pause = false;  // while it is on, a search serves the message loop and goes no further

  // Told for each file found; `path` is its folder, with a backslash at its end.
  std::function<void(const std::string& path, const std::string& name)> found;
  // Told for each folder, before its files; with a backslash at its end.
  std::function<void(const std::string& path)> searching;

  // What the present findfiles has found so far, the file that is being told of as the last. Null
  // before the first, and where the folder could not be read.
  [[nodiscard]] const std::shared_ptr<const Files>& filesfound() const { return filesfound_; }

 private:
  class Run;

  // Serves the loop while the search shall pause; false: it is cancelled, or the program has ended.
  [[nodiscard]] bool goes_on();

  Session& session_;
  bool cancelled_ = false;
  std::shared_ptr<const Files> filesfound_;
};

}  // namespace quillvane
