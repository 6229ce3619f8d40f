// The browsers with a layout of their own.
#pragma once

namespace quillvane {

class JunkPage;

void iecache(JunkPage& page);       // the URL cache and two folders
void firefoxcache(JunkPage& page);  // two folder trees, profiles found on disk
void operacache(JunkPage& page);    // a fixed list for one profile
void uccache(JunkPage& page);       // profiles found on disk

}  // namespace quillvane
