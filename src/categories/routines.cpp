#include "categories/routines.h"

#include "categories/catalogue.h"
#include "categories/windows_categories.h"

namespace quillvane {

namespace {

using Routine = void (*)(Form7&);

// From node 2 on.
constexpr Routine kWindowsRoutines[] = {systemp, utemp,    thumb,        memdump,  errorrep,
                                        logfile, recycleb, downloadprog, wupdates, whistory};

}  // namespace

void run_category(Form7& form, int node) {
  if (node >= kFirstWindowsLeaf && node <= kLastWindowsLeaf) {
    kWindowsRoutines[node - kFirstWindowsLeaf](form);
  }
}

}  // namespace quillvane
