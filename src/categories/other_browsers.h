// The browsers with a layout of their own.
#pragma once

namespace quillvane {

class Form7;

void iecache(Form7& form);       // node 13: the URL cache and two folders
void firefoxcache(Form7& form);  // node 14: two folder trees, profiles found on disk
void operacache(Form7& form);    // node 16: a fixed list for one profile
void uccache(Form7& form);       // node 23: profiles found on disk

}  // namespace quillvane
