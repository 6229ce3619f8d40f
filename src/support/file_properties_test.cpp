#include "support/file_properties.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/unicode_case.h"
#include "support/file_date.h"
#include "tests/support/no_files.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

constexpr const char* kPath = "C:\\Temp\\a.tmp";

// A disk on which C:\Temp holds one file, of whose listing the test says all.
class OneFile : public NoFiles {
 public:
  explicit OneFile(FolderEntry entry) : entry_(std::move(entry)) {}

  [[nodiscard]] std::vector<FolderEntry> list_folder(const std::string& folder,
                                                     const std::string& pattern) const override {
    if (!same_name(folder, "C:\\Temp\\") || !matches_file_pattern(entry_.name, pattern)) return {};
    return {entry_};
  }

 private:
  FolderEntry entry_;
};

FolderEntry entry_of(std::uint64_t bytes, std::uint32_t attributes = 0) {
  return {.name = "a.tmp",
          .attributes = attributes,
          .size_bytes = bytes,
          .created = file_time_of({2013, 3, 7, 9, 5, 0}),
          .accessed = file_time_of({2014, 12, 31, 23, 59, 58}),
          .modified = file_time_of({2015, 10, 11, 12, 13, 14})};
}

std::string byte_size(std::uint64_t bytes) {
  const OneFile files(entry_of(bytes));
  clsFileProp properties(files);
  EXPECT_EQ(properties.FindFileInfo(kPath), 1);
  return properties.ByteSize();
}

TEST(FileProperties, TimesAreNumbersWithoutLeadingZeros) {
  const OneFile files(entry_of(1));
  clsFileProp properties(files);

  properties.FindFileInfo(kPath);

  EXPECT_EQ(properties.CreationTime(), "3/7/2013 9:5:0");
  EXPECT_EQ(properties.LastAccessTime(), "12/31/2014");
  EXPECT_EQ(properties.LastWriteTime(), "10/11/2015 12:13:14");
}

TEST(FileProperties, TheNameIsThePathInUpperCase) {
  TempMachine machine;
  machine.add_file("C:\\Temp\\Größe.tmp", 12);
  clsFileProp properties(machine.platform().files);

  properties.FindFileInfo("C:\\temp\\größe.tmp");

  EXPECT_EQ(properties.FileName(), "C:\\TEMP\\GRÖßE.TMP");
  EXPECT_EQ(properties.ByteSize(), "12");
}

TEST(FileProperties, AnEmptyFileHasNoDigits) { EXPECT_EQ(byte_size(0), ""); }

TEST(FileProperties, SizesUpToTwoGigabytesAreTheirBytes) {
  EXPECT_EQ(byte_size(1), "1");
  EXPECT_EQ(byte_size(1'234'567'890), "1234567890") << "more digits than the pattern has signs";
  EXPECT_EQ(byte_size(0x7FFF'FFFF), "2147483647");
}

TEST(FileProperties, SizesFromTwoToFourGigabytesAreNegative) {
  EXPECT_EQ(byte_size(0x8000'0000), "-2147483648");
  EXPECT_EQ(byte_size(0xFFFF'FFFF), "-1");
}

TEST(FileProperties, FromFourGigabytesOnTheHighHalfIsTheSize) {
  EXPECT_EQ(byte_size(0x1'0000'0000), "1");
  EXPECT_EQ(byte_size(0x5'8000'0001), "5");
}

TEST(FileProperties, EachFlagIsOneAttribute) {
  const struct {
    std::uint32_t bit;
    bool (clsFileProp::*flag)() const;
  } flags[] = {{1, &clsFileProp::ReadOnly},   {2, &clsFileProp::Hidden},
               {4, &clsFileProp::System},     {32, &clsFileProp::Archive},
               {128, &clsFileProp::Normal},   {256, &clsFileProp::Temporary},
               {2048, &clsFileProp::Compress}};
  for (const auto& set : flags) {
    const OneFile files(entry_of(1, set.bit));
    clsFileProp properties(files);
    properties.FindFileInfo(kPath);
    for (const auto& other : flags) {
      EXPECT_EQ((properties.*other.flag)(), set.bit == other.bit) << set.bit << " " << other.bit;
    }
  }
}

TEST(FileProperties, AFolderIsNoDirectory) {
  TempMachine machine;
  machine.add_folder("C:\\Temp\\Inner");
  clsFileProp properties(machine.platform().files);

  EXPECT_EQ(properties.FindFileInfo("C:\\Temp\\Inner"), 1);

  EXPECT_FALSE(properties.Directory());
  EXPECT_EQ(properties.FileName(), "C:\\TEMP\\INNER");
  EXPECT_NE(properties.LastWriteTime(), "1/1/1601 0:0:0");
}

TEST(FileProperties, AnEmptyPathChangesNothing) {
  const OneFile files(entry_of(7, 1));
  clsFileProp properties(files);
  properties.FindFileInfo(kPath);

  EXPECT_EQ(properties.FindFileInfo(""), 0);

  EXPECT_EQ(properties.FileName(), "C:\\TEMP\\A.TMP");
  EXPECT_EQ(properties.ByteSize(), "7");
  EXPECT_TRUE(properties.ReadOnly());
}

TEST(FileProperties, AMissingFileIsOneOfTheYear1601WithoutASize) {
  const OneFile files(entry_of(7, 1));
  clsFileProp properties(files);
  properties.FindFileInfo(kPath);
  for (const char* path : {"C:\\Temp\\b.tmp", "C:\\Temp\\", "C:\\", "C:", "a.tmp"}) {
    EXPECT_EQ(properties.FindFileInfo(path), 1) << path;
    EXPECT_EQ(properties.FileName(), upper_case(path));
    EXPECT_EQ(properties.ByteSize(), "") << path;
    EXPECT_FALSE(properties.ReadOnly()) << path;
    EXPECT_EQ(properties.CreationTime(), "1/1/1601 0:0:0") << path;
    EXPECT_EQ(properties.LastAccessTime(), "1/1/1601") << path;
    EXPECT_EQ(properties.LastWriteTime(), "1/1/1601 0:0:0") << path;
  }
}

TEST(FileProperties, OfAPatternTheFirstMatchCountsUnderThePatternsName) {
  TempMachine machine;
  machine.add_file("C:\\Temp\\b.log", 3);
  machine.add_file("C:\\Temp\\a.log", 2);
  machine.add_file("C:\\Temp\\a.aaa", 1);
  clsFileProp properties(machine.platform().files);

  properties.FindFileInfo("C:\\Temp\\?.log");

  EXPECT_EQ(properties.FileName(), "C:\\TEMP\\?.LOG");
  EXPECT_EQ(properties.ByteSize(), "2");
}

TEST(FileProperties, OfEverythingInAFolderTheFolderItselfIsFirst) {
  TempMachine machine;
  machine.add_file("C:\\Temp\\a.log", 2);
  machine.add_file("C:\\b.log", 3);
  clsFileProp properties(machine.platform().files);

  properties.FindFileInfo("C:\\Temp\\*.*");
  EXPECT_EQ(properties.ByteSize(), "");

  properties.FindFileInfo("C:\\b*");
  EXPECT_EQ(properties.ByteSize(), "3") << "a root has no entry of its own";
}

TEST(FileProperties, WhatNothingFillsIsEmpty) {
  const OneFile files(entry_of(7));
  clsFileProp properties(files);
  properties.FindFileInfo(kPath);
  for (const std::string& text :
       {properties.CompanyName(), properties.FileDescription(), properties.FileVersion(),
        properties.InternalName(), properties.LegalCopyright(), properties.OriginalFileName(),
        properties.ProductName(), properties.ProductVersion(), properties.FileType()}) {
    EXPECT_EQ(text, "");
  }
  EXPECT_EQ(properties.IconIndex(), 0);
}

}  // namespace
}  // namespace quillvane
