// The seven browsers of the Chromium family: one rule, and a table of what each takes.
#pragma once

namespace quillvane {

class Form7;

void googlecache(Form7& form);   // node 15
void edgecache(Form7& form);     // node 17: extension state and session storage too
void bravecache(Form7& form);    // node 18
void vivaldicache(Form7& form);  // node 19: the browsing history too
void Torchcache(Form7& form);    // node 20
void maxcache(Form7& form);      // node 21
void ydxcache(Form7& form);      // node 22: the browsing history too

}  // namespace quillvane
