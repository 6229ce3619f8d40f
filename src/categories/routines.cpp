#include "categories/routines.h"

#include <iterator>

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "categories/windows_categories.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"

namespace quillvane {

namespace {

struct CategoryRoutine {
  int node;
  void (*scan)(JunkPage&);
};

constexpr CategoryRoutine kRoutines[] = {
    {kSystemTempNode, systemp},  {kUserTempNode, utemp},           {kThumbnailNode, thumb},
    {kMemoryDumpNode, memdump},  {kErrorReportNode, errorrep},     {kLogFileNode, logfile},
    {kRecycleBinNode, recycleb}, {kDownloadedNode, downloadprog},  {kUpdatesNode, wupdates},
    {kHistoryNode, whistory},    {kInternetExplorerNode, iecache}, {kFirefoxNode, firefoxcache},
    {kChromeNode, googlecache},  {kOperaNode, operacache},         {kEdgeNode, edgecache},
    {kBraveNode, bravecache},    {kVivaldiNode, vivaldicache},     {kTorchNode, Torchcache},
    {kMaxthonNode, maxcache},    {kYandexNode, ydxcache},          {kUcBrowserNode, uccache},
};

constexpr bool each_leaf_has_its_routine() {
  const CategoryRoutine* next = std::begin(kRoutines);
  for (const CatalogueNode& row : kCatalogue) {
    if (row.parent.empty()) continue;
    if (next == std::end(kRoutines) || next->node != row.node) return false;
    ++next;
  }
  return next == std::end(kRoutines);
}
static_assert(each_leaf_has_its_routine());

}  // namespace

void run_category(JunkPage& page, int node) {
  if (page.session.ended()) return;
  for (const CategoryRoutine& routine : kRoutines) {
    if (routine.node == node) routine.scan(page);
  }
}

}  // namespace quillvane
