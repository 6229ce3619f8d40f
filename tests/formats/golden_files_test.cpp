// The files of this folder, each as some program has left it: what is read from them, and what a
// save makes of it, byte for byte. They are in code page 1252.
//
// A file NAME.EXT is saved as NAME.saved.EXT where that is there, otherwise as it was.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "drivesearch/folder_list.h"
#include "drivesearch/type_table.h"
#include "support/list_files.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

std::string bytes_of(const fs::path& name) {
  std::ifstream file(fs::path(QUILLVANE_FORMATS) / name, std::ios::binary);
  EXPECT_TRUE(file.good()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string saved_bytes_of(const std::string& name) {
  fs::path saved(name);
  saved.replace_extension(".saved" + saved.extension().string());
  return bytes_of(fs::exists(fs::path(QUILLVANE_FORMATS) / saved) ? saved : fs::path(name));
}

struct Golden {
  std::string file;
  Texts rows;  // fields joined by "|"
};

// Reads each file on a machine of its own by `read`, and saves it by `save`.
template <typename Read, typename Save>
void check(const std::vector<Golden>& files, Read read, Save save) {
  for (const Golden& golden : files) {
    ScanFixture fixture;
    fixture.add_program_file("the.list", bytes_of(golden.file));
    const Platform platform = fixture.machine.platform();
    const std::string path = kProgramFolder + "\\the.list";
    EXPECT_EQ(read(platform, path), golden.rows) << golden.file;
    save(platform, path);
    EXPECT_EQ(fixture.program_file("the.list"), saved_bytes_of(golden.file)) << golden.file;
  }
}

TEST(GoldenFiles, OfPlaces) {
  const auto read = [](const Platform& platform, const std::string& path) {
    Texts rows;
    for (const ListedPlace& place : read_folder_list(platform, path).places) {
      rows.push_back(place.name + "|" + place.description + "|" + place.flag);
    }
    return rows;
  };
  const auto save = [](const Platform& platform, const std::string& path) {
    EXPECT_TRUE(write_folder_list(platform, path, read_folder_list(platform, path).places));
  };
  const Golden short_file{"places-short.orv", {}};
  check({{"places-usual.orv",
          {"C:\\Gr\u00F6\u00DFe|Meine Daten|9", "notes.txt|A file|1", "C:\\Blanks|around|9"}},
         {"places-empty.orv", {}},
         {"places-torn.orv", {"C:\\Data|My data|9", "C:\\Torn|Half of it|"}},
         {"places-torn-less.orv", {"C:\\Data|My data|9"}},
         {"places-full.orv", {"C:\\" + std::string(147, 'n') + "|" + std::string(250, 'd') + "|9"}},
         {"places-other-letters.orv", {"C:\\\u041C\u0438\u0440|Gr\u00F6\u00DFe|9"}}},
        read, save);
  check({short_file}, read, [](const Platform&, const std::string&) {});
}

TEST(GoldenFiles, OfTypes) {
  const auto read = [](const Platform& platform, const std::string& path) {
    Texts rows;
    for (const FileTypeEntry& row : read_type_table_file(platform, path).rows) {
      rows.push_back(row.description + "|" + row.extension + "|" + row.flag);
    }
    return rows;
  };
  check(
      {{"types-usual.orv",
        {"Temporary files|*.tmp|1", "Gr\u00F6\u00DFe|*.old|0", "||0", "file with zero size|*.*|0"}},
       {"types-empty.orv", {}},
       {"types-torn.orv", {"Temporary files|*.tmp|1", "Old files|*.o|"}},
       {"types-full.orv", {std::string(50, 'd') + "|*." + std::string(48, 'e') + "|1"}}},
      read, [](const Platform& platform, const std::string& path) {
        const auto rows = read_type_table_file(platform, path).rows;
        const Session session(platform);
        EXPECT_TRUE(write_type_table(session, rows));
        EXPECT_TRUE(platform.files.copy_file(session.data_file(kTypeFile), path));
      });
  // Less than half a row is none.
  check({{"types-short.orv", {}}}, read, [](const Platform&, const std::string&) {});
}

TEST(GoldenFiles, OfIgnoredPlaces) {
  check(
      {{"ignore-usual.tdw", {"C:\\Kept", "C:\\Gr\u00F6\u00DFe\\a.txt"}},
       {"ignore-empty.tdw", {}},
       {"ignore-torn.tdw", {"C:\\Kept", "C:\\To"}},
       {"ignore-overlong.tdw", {"C:\\" + std::string(5000, 'n')}}},
      [](const Platform& platform, const std::string& path) {
        return read_list_file(platform, path).lines;
      },
      [](const Platform& platform, const std::string& path) {
        EXPECT_TRUE(write_list_file(platform, path, read_list_file(platform, path).lines));
      });
}

TEST(GoldenFiles, OfCustomFolders) {
  const auto entries = [](const Platform& platform, const std::string& path) {
    Texts lines;
    for (const std::string& line : read_list_file(platform, path).lines) {
      lines.push_back(line_of(custom_entry_of(line)));
    }
    return lines;
  };
  check({{"custom-usual.tdw", {"Gr\u00F6\u00DFe|C:\\Mine|*.tmp,*.log|*.doc|1", "||*.*||0"}},
         {"custom-empty.tdw", {}},
         {"custom-torn.tdw", {"Mine|C:\\Mine|*.tmp||", "Torn|C:\\T|||"}},
         // A bar in the folder shifts the fields behind it.
         {"custom-overlong.tdw", {"Bar|C:\\A|B|*.tmp|*.doc"}}},
        entries, [&](const Platform& platform, const std::string& path) {
          EXPECT_TRUE(write_list_file(platform, path, entries(platform, path)));
        });
}

TEST(GoldenFiles, OfReports) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  for (const char* path : {" C:\\a b.tmp", "C:\\Gr\u00F6\u00DFe.tmp "}) {
    add_hit(form.view1, path, 2);
  }
  form.totals.winsize = 1536;
  form.Text1.set_text(" Local Disk (C:) ");
  form.foundsizetext = "12.5 KB";
  fixture.machine.dialogs().answer_path("C:\\report.txt");
  form.orvbutton3.click();
  EXPECT_EQ(fixture.machine.file_text("C:\\report.txt"), bytes_of("report.txt"));
  form.Text5.set_text("C:\\report.htm");
  form.Command9.click();
  EXPECT_EQ(fixture.machine.file_text("C:\\report.htm"), bytes_of("report.htm"));
}

TEST(GoldenFiles, AreAllLookedAt) {
  const std::string source = bytes_of("golden_files_test.cpp");
  for (const auto& entry : fs::directory_iterator(QUILLVANE_FORMATS)) {
    const std::string name = entry.path().filename().string();
    if (name.find(".saved.") != std::string::npos) continue;
    EXPECT_NE(source.find("\"" + name + "\""), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace quillvane
