// The ten categories of the group "Windows": which places each looks at.
//
// Every place is tried on every system; one that does not exist yields nothing.
#pragma once

namespace quillvane {

class JunkPage;

void systemp(JunkPage& page);
void utemp(JunkPage& page);
void thumb(JunkPage& page);
void memdump(JunkPage& page);  // reports the dump file, adds no row for it
void errorrep(JunkPage& page);
void logfile(JunkPage& page);
void recycleb(JunkPage& page);
void downloadprog(JunkPage& page);
void wupdates(JunkPage& page);
void whistory(JunkPage& page);

}  // namespace quillvane
