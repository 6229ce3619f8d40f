// A browser's rows are answered from one reading of its folder. What comes of it must be what walks
// of the disk give, row by row: on trees made up by seeds, with names in mixed case, links, folders
// that cannot be listed and paths that are too long.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "categories/category_frame.h"
#include "platform/folder/registry_store.h"
#include "platform/unicode_case.h"
#include "tests/support/random_tree.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/told_browsers.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

// All that a category leaves behind.
struct Outcome {
  std::vector<Texts> rows;
  double files = 0;
  double bytes = 0;
  int served = 0;  // times that the message loop was
  std::string last_looked_at;
  bool operator==(const Outcome&) const = default;
};

Outcome outcome_of(ScanFixture& fixture, const std::function<void(Form7&)>& routine) {
  Form7& form = fixture.program->main_window();
  form.view1.clear();
  form.Text13.set_text("");
  Outcome outcome;
  fixture.machine.loop().set_served_hook([&] { ++outcome.served; });
  routine(form);
  fixture.machine.loop().set_served_hook(nullptr);
  for (int row = 1; row <= form.view1.count(); ++row) {
    outcome.rows.push_back({form.view1.text(row), form.view1.sub_item(row, kSizeColumn),
                            form.view1.sub_item(row, kDateColumn),
                            form.view1.sub_item(row, kCategoryColumn),
                            form.view1.icon(row).value_or("none")});
  }
  outcome.files = form.totals.catfiles;
  outcome.bytes = form.totals.catsize;
  outcome.last_looked_at = form.Text13.text();
  return outcome;
}

// The routine as it is told: profile by profile, row by row, each a walk of the disk.
void walk_rows(Form7& form, const ToldBrowser& browser, const Texts& profiles) {
  begin_category(form, browser.node);
  const std::string user_data = place_of(browser);
  // The message loop is served once for each name of the registry.
  for (std::size_t i = 0; i < profiles.size(); ++i) form.session.do_events();
  for (const std::string& name : profiles) {
    const std::string profile = user_data + "\\" + name;
    for (const ToldRow& row : browser.rows) {
      const std::string folder = (row.base == 'R' ? user_data : profile) + row.suffix;
      if (row.base != 'X') {
        form.srch(folder, row.pattern, browser.node);
        continue;
      }
      for (const FolderEntry& entry : form.platform().files.list_folder(folder, "*.*")) {
        if (!entry.is_folder()) continue;
        form.srch(folder + "\\" + entry.name + "\\def\\GPUCache", row.pattern, browser.node);
      }
    }
  }
  end_category(form, browser.node);
}

// A machine on which one tree is put into the place of each browser in turn.
struct Staged : ScanFixture {
  Staged(std::uint32_t seed, const Oddities& oddities) : folder_(machine.host_path("C:\\made")) {
    const fs::path elsewhere = machine.host_path("C:\\elsewhere");
    RandomTree(seed + 1000, {}, elsewhere);
    RandomTree tree(seed, oddities, folder_);
    tree.add_links(elsewhere);
    const std::string denied = tree.any_folder();
    for (const ToldBrowser& browser : told_browsers()) {
      if (oddities.denied) machine.machine().add_denied(place_of(browser) + "\\" + denied);
      machine.add_folder(place_of(browser));
      fs::remove(machine.host_path(place_of(browser)));
    }
    EXPECT_TRUE(machine.machine().registry().at_one_stroke([&] { return register_profiles(); }));
    start();
  }

  bool register_profiles() {
    FolderRegistry& registry = machine.machine().registry();
    bool done = true;
    for (const ToldBrowser& browser : told_browsers()) {
      for (const std::string& profile : profiles) {
        done = done &&
               registry.create_key(Hive::kCurrentUser, std::string(browser.key) + "\\" + profile);
      }
    }
    return done;
  }

  // Also names a folder to be ignored and a file that is queued.
  void put_into_place(const ToldBrowser& browser) {
    const fs::path place = machine.host_path(place_of(browser));
    fs::rename(folder_, place);
    folder_ = place;
    Form7& form = program->main_window();
    const std::string profile = lower_case(place_of(browser)) + "\\default\\";
    form.ignorelist.set_text(profile + "cache\\|");
    form.Text15.set_text("|\\??\\" + profile + "history|");
  }

  const Texts profiles = {"Default", "PROFILE 1"};  // the second is registered in another case

 private:
  fs::path folder_;
};

// Answers the number of rows that all browsers have found.
std::size_t expect_same(std::uint32_t seed, const Oddities& oddities) {
  Staged staged(seed, oddities);
  std::size_t rows = 0;
  for (const ToldBrowser& browser : told_browsers()) {
    staged.put_into_place(browser);
    const Outcome kept = outcome_of(staged, browser.routine);
    const Outcome plain =
        outcome_of(staged, [&](Form7& form) { walk_rows(form, browser, staged.profiles); });
    EXPECT_EQ(kept, plain) << browser.key << ", seed " << seed;
    rows += kept.rows.size();
  }
  return rows;
}

void expect_same_for_all_seeds(const Oddities& oddities) {
  constexpr std::uint32_t kSeeds = 4;
  std::size_t rows = 0;
  for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) rows += expect_same(seed, oddities);
  EXPECT_GT(rows, kSeeds * told_browsers().size() * 10);  // so the trees are far from empty
}

TEST(BrowserWalks, TreesGiveTheRowsOfPlainWalks) { expect_same_for_all_seeds({}); }

TEST(BrowserWalks, SoDoTreesWithLinks) {
  expect_same_for_all_seeds({.links_outside = true});
  expect_same_for_all_seeds({.links_outside = true, .links_inside = true});
}

TEST(BrowserWalks, SoDoTreesWithFoldersThatCannotBeListed) {
  expect_same_for_all_seeds({.denied = true});
}

TEST(BrowserWalks, SoDoTreesWithPathsThatAreTooLong) {
  expect_same_for_all_seeds({.links_outside = true, .denied = true, .long_paths = true});
}

}  // namespace
}  // namespace quillvane
