// The shortcut window on a machine of a test's own.
//
//   ShortcutFixture fixture;
//   fixture.add_link(kStartMenu + "\\Gone.lnk", "C:\\gone.exe");
//   Form3& form = fixture.scan();
//   EXPECT_EQ(rows(form.view1), Texts{"Gone"});
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "shortcuts/form3.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {

inline const std::string kStartMenu =
    "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu";
inline const std::string kSettings = "software\\Quillvane\\Tidewrack Deluxe\\";
inline const std::string kRecent = "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Recent";

struct ShortcutFixture : ScanFixture {
  explicit ShortcutFixture(std::string_view machine_json = {}) : ScanFixture(machine_json) {
    set_user_folder("Start Menu", kStartMenu);
    set_user_folder("Recent", kRecent);
    machine.add_folder(kStartMenu);
    machine.add_folder(kRecent);
  }

  // A setting of the program.
  void set_setting(const std::string& key, const std::string& name, const std::string& text) {
    machine.set_registry_text(Hive::kLocalMachine, kSettings + key, name, text);
  }
  [[nodiscard]] std::string setting(const std::string& key, const std::string& name) {
    return machine.registry_text(Hive::kLocalMachine, kSettings + key, name).value_or("(none)");
  }
  void set_user_folder(const std::string& name, const std::string& path) {
    machine.set_registry_text(
        Hive::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
        name, path);
  }

  void add_link(const std::string& path, const std::string& target) {
    machine.add_folder(path.substr(0, path.rfind('\\')));
    EXPECT_TRUE(machine.platform().links.write_link(path, {.target = target})) << path;
  }
  [[nodiscard]] LinkContent link(const std::string& path) {
    LinkContent content;
    EXPECT_TRUE(machine.platform().links.read_link(path, content)) << path;
    return content;
  }

  // Starts the program with the shortcut window alone.
  Form3& start() {
    ScanFixture::start("s");
    return *program->shortcut_window();
  }
  // The same, and scans the start menu.
  Form3& scan() {
    Form3& form = start();
    form.cmd_start.click();
    return form;
  }
};

}  // namespace quillvane
