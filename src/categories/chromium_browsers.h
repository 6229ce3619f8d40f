// The seven browsers of the Chromium family: one rule, and a table of what each takes.
#pragma once

namespace quillvane {

class JunkPage;

void googlecache(JunkPage& page);
void edgecache(JunkPage& page);  // extension state and session storage too
void bravecache(JunkPage& page);
void vivaldicache(JunkPage& page);  // the browsing history too
void Torchcache(JunkPage& page);
void maxcache(JunkPage& page);
void ydxcache(JunkPage& page);  // the browsing history too

}  // namespace quillvane
