// The rows of Internet Explorer that come from the system's URL cache, and the emptying of it.
#pragma once

namespace quillvane {

class JunkPage;

// Adds a row for each entry with a local file. When the first entry's file is empty or gone,
// nothing is listed at all, whatever stands behind it, and the listing stays open: meant so. The
// tests of the walker do not apply to these rows.
void ListUrlCacheEntries(JunkPage& page, int node);

// Empties the URL cache at the end of a cleaning run, whatever was selected. Entries without a
// local file stay, except the first.
void deleteiecach(JunkPage& page);

}  // namespace quillvane
