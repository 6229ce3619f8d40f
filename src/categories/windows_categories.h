// The ten categories of the group "Windows": which places each looks at.
//
// Every place is tried on every system; one that does not exist yields nothing.
#pragma once

namespace quillvane {

class JunkPage;

void systemp(JunkPage& page);       // node 2
void utemp(JunkPage& page);         // node 3
void thumb(JunkPage& page);         // node 4
void memdump(JunkPage& page);       // node 5: reports the dump file, adds no row for it
void errorrep(JunkPage& page);      // node 6
void logfile(JunkPage& page);       // node 7
void recycleb(JunkPage& page);      // node 8
void downloadprog(JunkPage& page);  // node 9
void wupdates(JunkPage& page);      // node 10
void whistory(JunkPage& page);      // node 11

}  // namespace quillvane
