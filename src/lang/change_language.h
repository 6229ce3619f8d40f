// Putting the chosen language on a window.
#pragma once

#include "forms/window.h"
#include "support/session.h"

namespace quillvane {

// Where the choice is stored, in HKEY_LOCAL_MACHINE.
inline constexpr const char* kLanguageKey = "SOFTWARE\\Quillvane\\Tidewrack\\fernwick";

// Reads the chosen language afresh and gives the window's controls its font and its texts, by the
// window's table (lang/window_texts.h). Without a file of that language the window keeps the texts
// that it has; in one that is there, a missing key blanks its text. Nothing is mirrored, and what
// no table names stays English: messages, nodes of the tree, status lines.
void changelangorv(Session& session, const Window& window);

}  // namespace quillvane
