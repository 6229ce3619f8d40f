#include "categories/routines.h"

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "categories/windows_categories.h"
#include "scan/catalogue.h"
#include "scan/junk_page.h"

namespace quillvane {

namespace {

using Routine = void (*)(JunkPage&);

// From node 2 on.
constexpr Routine kWindowsRoutines[] = {systemp, utemp,    thumb,        memdump,  errorrep,
                                        logfile, recycleb, downloadprog, wupdates, whistory};

// From node 13 on.
constexpr Routine kBrowserRoutines[] = {iecache,   firefoxcache, googlecache,  operacache,
                                        edgecache, bravecache,   vivaldicache, Torchcache,
                                        maxcache,  ydxcache,     uccache};

}  // namespace

void run_category(JunkPage& page, int node) {
  if (page.session.ended()) return;
  if (node >= kFirstWindowsLeaf && node <= kLastWindowsLeaf) {
    kWindowsRoutines[node - kFirstWindowsLeaf](page);
  } else if (node >= kFirstBrowserLeaf && node <= kLastBrowserLeaf) {
    kBrowserRoutines[node - kFirstBrowserLeaf](page);
  }
}

}  // namespace quillvane
