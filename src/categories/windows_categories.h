// The ten categories of the group "Windows": which places each looks at.
//
// Every place is tried on every system; one that does not exist yields nothing.
#pragma once

namespace quillvane {

class Form7;

void systemp(Form7& form);       // node 2
void utemp(Form7& form);         // node 3
void thumb(Form7& form);         // node 4
void memdump(Form7& form);       // node 5: reports the dump file, adds no row for it
void errorrep(Form7& form);      // node 6
void logfile(Form7& form);       // node 7
void recycleb(Form7& form);      // node 8
void downloadprog(Form7& form);  // node 9
void wupdates(Form7& form);      // node 10
void whistory(Form7& form);      // node 11

}  // namespace quillvane
