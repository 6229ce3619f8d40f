// The links that a scan has looked at, each with a verdict, for people and for programs.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/platform.h"
#include "shortcuts/shortcut_scan.h"
#include "shortcuts/verdict.h"
#include "view/console/console_io.h"

namespace quillvane {

struct ListedLink {
  std::string name;
  std::string target;
  std::string path;  // of the link
  ShortcutVerdict verdict = ShortcutVerdict::kPresent;
  std::string looked_up;   // what the verdict is of
  bool is_broken = false;  // the window lists it
};

class LinkList {
 public:
  // `machine` must outlive it.
  explicit LinkList(const Platform& machine) : machine_(machine) {}

  // Notes each link that `scan` looks at from now on.
  void watch(ShortcutScan& scan);

  [[nodiscard]] const std::vector<ListedLink>& links() const { return links_; }
  [[nodiscard]] int broken() const;
  // The one of that path; null when it was not looked at.
  [[nodiscard]] const ListedLink* find(const std::string& path) const;

 private:
  void add(const JudgedLink& link);

  const Platform& machine_;
  std::vector<ListedLink> links_;
  std::unordered_map<std::string, std::size_t> by_path_;
};

// How many links there are of each verdict, the broken ones, and the summary. With `all` the good
// ones too.
void print_links(const ConsoleIo& io, const LinkList& list, bool all);

// The same as a document that is left open, so that a command can add its own members.
void print_links_json_open(std::ostream& out, const LinkList& list, bool all);

}  // namespace quillvane
