#include "categories/routines.h"

#include "categories/chromium_browsers.h"
#include "categories/other_browsers.h"
#include "categories/windows_categories.h"
#include "core/form7.h"
#include "scan/catalogue.h"

namespace quillvane {

namespace {

using Routine = void (*)(Form7&);

// From node 2 on.
constexpr Routine kWindowsRoutines[] = {systemp, utemp,    thumb,        memdump,  errorrep,
                                        logfile, recycleb, downloadprog, wupdates, whistory};

// From node 13 on.
constexpr Routine kBrowserRoutines[] = {iecache,   firefoxcache, googlecache,  operacache,
                                        edgecache, bravecache,   vivaldicache, Torchcache,
                                        maxcache,  ydxcache,     uccache};

}  // namespace

void run_category(Form7& form, int node) {
  if (form.program.ended()) return;
  if (node >= kFirstWindowsLeaf && node <= kLastWindowsLeaf) {
    kWindowsRoutines[node - kFirstWindowsLeaf](form);
  } else if (node >= kFirstBrowserLeaf && node <= kLastBrowserLeaf) {
    kBrowserRoutines[node - kFirstBrowserLeaf](form);
  }
}

}  // namespace quillvane
