// The user's own entries of custom.tdw, searched as the last group of the junk scan.
#include <string>
#include <vector>

#include "drivesearch/search_run.h"
#include "platform/unicode_case.h"
#include "scan/catalogue.h"
#include "support/list_files.h"
#include "support/text.h"

namespace quillvane {

// The ignore list ceases to apply here, and to what follows, until it is read again: meant so.
void SearchRun::searchcustom() {
  JunkPage& junk = pages_.junk;
  junk.ignorelist.set_text("0");
  begin_count();
  junk.totals.custfiles = 0;
  junk.totals.custsize = 0;
  const std::string path = session.data_file(kCustomFile);
  if (!platform().files.attributes(path)) return;
  const ListLines list = read_list_file(platform(), path);
  if (!list.problem.empty()) return;

  junk.custnode = kFirstCustomLeaf;
  for (const std::string& line : list.lines) {
    search_custom_entry(line);
    if (junk.cancelflag == 1 || session.ended()) break;
    junk.node_results[junk.custnode.value()] = {foundcount, foundbytes};
    junk.totals.custfiles += foundcount.value();
    junk.totals.custsize += foundbytes.value();
    foundcount = 0;
    foundbytes = 0;
    junk.custnode += 1;
  }
  junk.totals.totalfiles += junk.totals.custfiles.value();
  junk.totals.totalsize += junk.totals.custsize.value();
  junk.reset_node_text(kCustomNode);
  junk.add_group_result(kCustomNode, junk.totals.custfiles, junk.totals.custsize);
  junk.add_to_count_and_size(junk.totals.custfiles, junk.totals.custsize);
}

// What an entry leaves out is left out for the entries behind it too: the list is never emptied.
void SearchRun::search_custom_entry(const std::string& line) {
  JunkPage& junk = pages_.junk;
  const CustomEntry entry = custom_entry_of(line);
  if (!entry.exclude.empty()) {
    for (const std::string& name : Split(entry.exclude, ",")) {
      pages_.lists.List6.add(lower_case(Trim(name)));
    }
  }
  search.searchinsubfolders = Trim(entry.subfolders) == "1";
  junk.Tv1.set_node_color(junk.custnode, kGreen);
  junk.Tv1.refresh();
  search_place(entry.location, replace_all(entry.include, ",", "|"));
  junk.append_result(junk.custnode, foundcount, foundbytes);
  junk.Tv1.set_node_color(junk.custnode, foundcount >= 1 ? kDarkRed : 0);
}

}  // namespace quillvane
