// The seven browsers of the Chromium family: one rule, and a table of what each takes.
#pragma once

namespace quillvane {

class JunkPage;

void googlecache(JunkPage& page);   // node 15
void edgecache(JunkPage& page);     // node 17: extension state and session storage too
void bravecache(JunkPage& page);    // node 18
void vivaldicache(JunkPage& page);  // node 19: the browsing history too
void Torchcache(JunkPage& page);    // node 20
void maxcache(JunkPage& page);      // node 21
void ydxcache(JunkPage& page);      // node 22: the browsing history too

}  // namespace quillvane
