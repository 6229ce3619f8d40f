#include "categories/other_browsers.h"

#include <string>
#include <vector>

#include "categories/category_frame.h"
#include "categories/place.h"
#include "categories/url_cache_rows.h"
#include "core/form7.h"
#include "platform/unicode_case.h"
#include "scan/kept_listing.h"

namespace quillvane {

namespace {

constexpr int kInternetExplorerNode = 13;
constexpr int kFirefoxNode = 14;
constexpr int kOperaNode = 16;
constexpr int kUcBrowserNode = 23;

constexpr Place kInternetExplorer[] = {
    {"USERPROFILE", "\\AppData\\Local\\Microsoft\\Windows\\Temporary Internet Files", "*.*"},
    {"USERPROFILE", "\\AppData\\Local\\Microsoft\\Feeds Cache", "*.*"},
};

constexpr const char* kOperaStable = "\\AppData\\Roaming\\Opera Software\\Opera Stable";

// The first folder exists only as the junction of an older layout.
constexpr Place kOpera[] = {
    {"USERPROFILE", "\\Local Settings\\Opera Software\\Opera Stable\\Cache", "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable", "*-journal.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable", "*.tmp"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\GPUCache", "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\ShaderCache\\GPUCache",
     "*.*"},
    {"USERPROFILE",
     "\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\CacheStorage", "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\ScriptCache",
     "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Database",
     "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\Service Worker\\Origins",
     "*.*"},
    {"USERPROFILE", "\\AppData\\Roaming\\Opera Software\\Opera Stable\\file System", "*.*"},
};

// Where Firefox keeps a profile: settings and history in Roaming, caches in Local.
enum class Tree { kLocal, kRoaming };

struct ProfileRow {
  Tree tree;
  const char* suffix;
  const char* pattern;
};

// One pass over the profiles that a tree lists. The list says more than the caption "cache": it
// takes history, bookmarks and the saved session too, which is meant.
struct Pass {
  Tree profiles;
  std::vector<ProfileRow> rows;
};

const std::vector<Pass>& firefox_passes() {
  static const std::vector<Pass> passes = {
      {Tree::kLocal, {{Tree::kLocal, "\\cache2", "*.*"}}},
      {Tree::kRoaming, {{Tree::kRoaming, "\\cache2", "*.*"}}},
      {Tree::kRoaming, {{Tree::kLocal, "\\thumbnails", "*.*"}}},
      {Tree::kRoaming,
       {{Tree::kRoaming, "", "places.sqlite.*"},
        {Tree::kRoaming, "", "sessionCheckpoints.json"},
        {Tree::kRoaming, "", "sessionstore.jsonlz4"},
        {Tree::kLocal, "\\startupCache", "*.*"},
        {Tree::kLocal, "\\jumpListCache", "*.*"}}},
  };
  return passes;
}

}  // namespace

void iecache(Form7& form) {
  begin_category(form, kInternetExplorerNode);
  ListUrlCacheEntries(form, kInternetExplorerNode);
  walk_places(form, kInternetExplorerNode, kInternetExplorer);
  end_category(form, kInternetExplorerNode);
}

// Four rows look through each profile in Roaming; those of Local lie apart and are walked as they
// come.
void firefoxcache(Form7& form) {
  begin_category(form, kFirefoxNode);
  const std::string home = form.platform().environment.get("USERPROFILE");
  const auto folder_of = [&](Tree tree) {
    return home + (tree == Tree::kLocal ? "\\AppData\\Local" : "\\AppData\\Roaming") +
           "\\Mozilla\\Firefox\\Profiles";
  };
  KeptListing listing(
      form, folder_of(Tree::kRoaming),
      {"*.*", "places.sqlite.*", "sessionCheckpoints.json", "sessionstore.jsonlz4"});
  for (const Pass& pass : firefox_passes()) {
    for (const std::string& profile : subfolder_names(form, folder_of(pass.profiles))) {
      for (const ProfileRow& row : pass.rows) {
        listing.srch(folder_of(row.tree) + "\\" + profile + row.suffix, row.pattern, kFirefoxNode);
      }
    }
  }
  end_category(form, kFirefoxNode);
}

void operacache(Form7& form) {
  begin_category(form, kOperaNode);
  const std::string home = form.platform().environment.get("USERPROFILE");
  KeptListing listing(form, home + kOperaStable, {"*.*", "*-journal.*", "*.tmp"});
  for (const Place& place : kOpera) listing.srch(home + place.suffix, place.pattern, kOperaNode);
  end_category(form, kOperaNode);
}

void uccache(Form7& form) {
  begin_category(form, kUcBrowserNode);
  const std::string folder =
      form.platform().environment.get("USERPROFILE") + "\\AppData\\Local\\UCBrowser";
  KeptListing listing(form, folder, {"*.tmp", "*-journal.*", "*.*"});
  listing.srch(folder + "\\", "*.tmp", kUcBrowserNode);
  listing.srch(folder + "\\", "*-journal.*", kUcBrowserNode);
  for (const std::string& name : subfolder_names(form, folder)) {
    if (lower_case(name).find("user data") == std::string::npos) continue;
    listing.srch(folder + "\\" + name + "\\Default\\Cache", "*.*", kUcBrowserNode);
  }
  end_category(form, kUcBrowserNode);
}

}  // namespace quillvane
