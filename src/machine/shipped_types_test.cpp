// What the table of file types that comes with the program has to hold to.
#include "machine/data_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "drivesearch/type_families.h"
#include "drivesearch/type_table.h"
#include "platform/file_system.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

constexpr std::size_t kRecord = 101;

std::vector<FileTypeEntry> factory_rows() {
  TempMachine machine;
  machine.add_text_file("C:\\tmptype.orv", data_file("tmptype.orv"));
  TypeTable table = read_type_table_file(machine.platform(), "C:\\tmptype.orv");
  EXPECT_EQ(table.problem, "");
  return table.rows;
}

TEST(FactoryTypeTable, IsWholeRecordsOfPlainLetters) {
  const std::string_view table = data_file("tmptype.orv");
  EXPECT_EQ(table.size() % kRecord, 0U);
  EXPECT_TRUE(std::all_of(table.begin(), table.end(), [](char c) { return c >= ' ' && c <= '~'; }));
  const auto rows = factory_rows();
  EXPECT_EQ(rows.size(), table.size() / kRecord);
  EXPECT_GE(rows.size(), 40U);
}

TEST(FactoryTypeTable, HasNoRowThatIsHalfFilledOrThereTwice) {
  std::set<std::string> descriptions;
  std::set<std::string> patterns;
  for (const FileTypeEntry& row : factory_rows()) {
    EXPECT_TRUE(descriptions.insert(row.description).second) << row.description;
    EXPECT_TRUE(patterns.insert(row.extension).second) << row.extension;
    EXPECT_NE(row.extension, "") << row.description;
    EXPECT_TRUE(row.flag == "0" || row.flag == "1") << row.description;
    EXPECT_EQ(row.extension.find('|'), std::string::npos) << row.extension;
  }
}

TEST(FactoryTypeTable, HasRowsOfEachKindThatThereAreWordsFor) {
  std::set<std::string_view> titles;
  for (const FileTypeEntry& row : factory_rows())
    titles.insert(words_on_type(row.description).title);
  for (const char* title : {"Backup Files", "Temporary help Files", "Log Files",
                            "General Temporary Files", "Scan disk lost Files"}) {
    EXPECT_EQ(titles.count(title), 1U) << title;
  }
}

TEST(FactoryTypeTable, HasTheSwitchForAllFilesAndItIsOff) {
  int switches = 0;
  for (const FileTypeEntry& row : factory_rows()) {
    if (!row.switches_all_files()) continue;
    ++switches;
    EXPECT_TRUE(row.is_off());
  }
  EXPECT_EQ(switches, 1);
}

TEST(FactoryTypeTable, HasWhatMayHoldWorkOff) {
  const std::set<std::string> off = {"*.bak", "*.old", "*~", "*.??~", "*.~*", "*.part"};
  std::size_t seen = 0;
  for (const FileTypeEntry& row : factory_rows()) {
    if (off.count(row.extension) == 0) continue;
    ++seen;
    EXPECT_TRUE(row.is_off()) << row.extension;
  }
  EXPECT_EQ(seen, off.size());
}

// Long names, and the short ones that disks make up for them.
constexpr const char* kNeverFound[] = {
    "report.docx",     "REPORT~1.DOC", "report.doc",      "~$report.docx",
    "budget.xlsx",     "BUDGET~1.XLS", "talk.pptx",       "TALK~1.PPT",
    "text.odt",        "sheet.ods",    "letter.pdf",      "notes.txt",
    "README",          "readme.md",    "READM~1",         "data.csv",
    "photo.jpg",       "PHOTO1~1.JPE", "raw.cr2",         "scan.tif",
    "drawing.svg",     "drawing.dwg",  "song.mp3",        "song.flac",
    "film.mp4",        "FILM~1.MKV",   "mail.pst",        "mail.ost",
    "inbox.mbox",      "letter.eml",   "archive.zip",     "ARCHIV~1.7Z",
    "backup.tar.gz",   "disk.iso",     "machine.vhdx",    "keys.kdbx",
    "id_rsa",          "wallet.dat",   "main.cpp",        "module.py",
    "page.html",       "style.css",    "program.exe",     "library.dll",
    "driver.sys",      "setup.msi",    "patch.msp",       "script.ps1",
    "script.bat",      "desktop.ini",  "link.lnk",        "ntuser.dat",
    "NTUSER.DAT.LOG1", "NTUSER~1.LOG", "SYSTEM.LOG",      "edb.log",
    "edb00001.log",    "edb.chk",      "WebCacheV01.dat", "Windows.edb",
    "places.sqlite",   "db.mdf",       "db.ldf",          "db.sqlite-wal",
    "pagefile.sys",    "hiberfil.sys", "bootmgr",         "BCD",
    "System.evtx",     "hosts",        "font.ttf",        "recovery.asd",
    "report.wbk",      "image.fts",    "LOGICP~1.LOG",
};

TEST(FactoryTypeTable, FindsNoDocumentAndNothingThatWindowsRunsOn) {
  for (const FileTypeEntry& row : factory_rows()) {
    if (row.switches_all_files()) continue;
    for (const char* name : kNeverFound) {
      EXPECT_FALSE(matches_file_pattern(name, row.extension)) << row.extension << " finds " << name;
    }
  }
}

TEST(FactoryTypeTable, FindsTheJunkThatItsRowsAreFor) {
  const auto rows = factory_rows();
  for (const char* name :
       {"a.tmp", "A~1.TMP", "thumbs.db", "FILE0003.CHK", "page.bak", "notes.txt~", "unit1.~pas",
        "setup.log.old", "MSI1a2b3.LOG", "dd_setup_20260301.log", "hs_err_pid4711.log",
        "Report.wer", "MEMORY.DMP", "Mini030126-01.dmp", "editor.exe.4711.dmp", "winhelp.gid"}) {
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [name](const FileTypeEntry& row) {
      return !row.switches_all_files() && matches_file_pattern(name, row.extension);
    })) << name;
  }
}

}  // namespace
}  // namespace quillvane
