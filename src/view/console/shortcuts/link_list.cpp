#include "view/console/shortcuts/link_list.h"

#include <algorithm>
#include <array>

#include "view/console/json_text.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

// In the order in which they are told.
constexpr std::array kVerdicts = {ShortcutVerdict::kPresent, ShortcutVerdict::kMissing,
                                  ShortcutVerdict::kUnreachable, ShortcutVerdict::kNotAFile};
constexpr std::size_t kVerdictWidth = 11;
constexpr std::size_t kCountWidth = 8;

std::size_t count_of(const LinkList& list, ShortcutVerdict verdict) {
  return static_cast<std::size_t>(
      std::count_if(list.links().begin(), list.links().end(),
                    [verdict](const ListedLink& link) { return link.verdict == verdict; }));
}

std::string summary_of(const LinkList& list) {
  return "Broken Shortcut Files Found: " + std::to_string(list.broken());
}

void print_count(std::ostream& out, std::string_view verdict, std::size_t count) {
  out << padded(std::string(verdict), kVerdictWidth)
      << right_aligned(std::to_string(count), kCountWidth) << '\n';
}

Json link_json(const ListedLink& link) {
  return {{"name", link.name},          {"target", link.target},
          {"path", link.path},          {"verdict", verdict_text(link.verdict)},
          {"lookedUp", link.looked_up}, {"broken", link.is_broken}};
}

}  // namespace

void LinkList::watch(ShortcutScan& scan) {
  scan.on_judged = [this](const JudgedLink& link) { add(link); };
}

int LinkList::broken() const {
  return static_cast<int>(std::count_if(links_.begin(), links_.end(),
                                        [](const ListedLink& link) { return link.is_broken; }));
}

const ListedLink* LinkList::find(const std::string& path) const {
  const auto found = by_path_.find(path);
  return found == by_path_.end() ? nullptr : &links_[found->second];
}

void LinkList::add(const JudgedLink& link) {
  const ShortcutFinding found = judge_shortcut(machine_, link.content);
  by_path_[link.path] = links_.size();
  links_.push_back(
      {link.name, link.content.target, link.path, found.verdict, found.looked_up, link.is_listed});
}

void print_links(const ConsoleIo& io, const LinkList& list, bool all) {
  std::ostream& out = io.out;
  for (const ShortcutVerdict verdict : kVerdicts) {
    print_count(out, verdict_text(verdict), count_of(list, verdict));
  }
  print_count(out, "Total", list.links().size());
  out << '\n';
  for (const ListedLink& link : list.links()) {
    if (!out) return;
    if (!all && !link.is_broken) continue;
    out << padded(std::string(verdict_text(link.verdict)), kVerdictWidth) << "  "
        << shown(link.path, io.out_is_terminal);
    if (!link.target.empty()) out << " => " << shown(link.target, io.out_is_terminal);
    out << '\n';
  }
  if (all ? !list.links().empty() : list.broken() > 0) out << '\n';
  out << summary_of(list) << '\n';
}

void print_links_json_open(std::ostream& out, const LinkList& list, bool all) {
  const Json totals = {{"links", list.links().size()}, {"broken", list.broken()}};
  out << "{\"totals\": " << json_text(totals) << ",\n \"summary\": " << json_text(summary_of(list))
      << ",\n \"verdicts\": [";
  const char* separator = "\n  ";
  for (const ShortcutVerdict verdict : kVerdicts) {
    out << separator
        << json_text(Json{{"verdict", verdict_text(verdict)}, {"links", count_of(list, verdict)}});
    separator = ",\n  ";
  }
  out << "],\n \"links\": [";
  separator = "\n  ";
  for (const ListedLink& link : list.links()) {
    if (!out) return;
    if (!all && !link.is_broken) continue;
    out << separator << json_text(link_json(link));
    separator = ",\n  ";
  }
  out << ']';
}

}  // namespace quillvane
