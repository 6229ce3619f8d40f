// The browsers with a layout of their own.
#pragma once

namespace quillvane {

class JunkPage;

void iecache(JunkPage& page);       // node 13: the URL cache and two folders
void firefoxcache(JunkPage& page);  // node 14: two folder trees, profiles found on disk
void operacache(JunkPage& page);    // node 16: a fixed list for one profile
void uccache(JunkPage& page);       // node 23: profiles found on disk

}  // namespace quillvane
