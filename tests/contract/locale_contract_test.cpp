// The user's regional settings, which are those of the United States where the tests run, and what
// the disk tells of one file.
#include <string>

#include "platform/unicode_case.h"
#include "support/file_properties.h"
#include "support/locale_information.h"
#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class LocaleContract : public ContractTest {};
class FilePropertiesContract : public ContractTest {};

TEST_F(LocaleContract, NamesOfDaysAndMonthsCountFromMondayAndJanuary) {
  const GetInfomation info(platform);

  EXPECT_EQ(info.GetLongNameDay1(), "Monday");
  EXPECT_EQ(info.GetLongNameDay7(), "Sunday");
  EXPECT_EQ(info.GetShortNameDay3(), "Wed");
  EXPECT_EQ(info.GetLongMonthName1(), "January");
  EXPECT_EQ(info.GetLongMonthName12(), "December");
  EXPECT_EQ(info.GetShortMonthName9(), "Sep");
}

TEST_F(LocaleContract, NumbersDatesAndTimesHaveTheirSigns) {
  const GetInfomation info(platform);

  EXPECT_EQ(info.GetDecimalSeparator(), ".");
  EXPECT_EQ(info.GetThousandSeparator(), ",");
  EXPECT_EQ(info.GetDigitGrouping(), "3;0");
  EXPECT_EQ(info.GetNumberOfFractionalDigits(), "2");
  EXPECT_EQ(info.GetLeadingZerosForDecimal(), "1");
  EXPECT_EQ(info.GetNegativeSign(), "-");
  EXPECT_EQ(info.GetPositiveSign(), "");
  EXPECT_EQ(info.GetDateSeparator(), "/");
  EXPECT_EQ(info.GetTimeSeparator(), ":");
  EXPECT_EQ(info.GetCurrencySymbol(), "$");
  EXPECT_EQ(info.GetShortDateFormat(), "M/d/yyyy");
  EXPECT_EQ(info.GetTimeFormat(), "h:mm:ss tt");
  EXPECT_EQ(info.GetLanguage(), "English");
  EXPECT_EQ(info.GetCountry(), "United States");
}

TEST_F(LocaleContract, ANumberThatNamesNoSettingHasNone) {
  EXPECT_FALSE(platform.locale.text(0x7FF0));
}

TEST_F(LocaleContract, TheSystemsFolderIsThere) {
  const std::string folder = GetInfomation(platform).SystemDir();

  EXPECT_TRUE(same_name(folder, "C:\\windows\\system32")) << folder;
}

TEST_F(LocaleContract, TheEnvironmentIsThatOfTheMachine) {
  machine->set_environment("OS", "Of the test");

  EXPECT_EQ(GetInfomation(platform).GetOS(), "Of the test");
}

TEST_F(FilePropertiesContract, TellSizeFlagsAndTimesOfAFile) {
  machine->add_file(path_of("a.tmp"), "12345");
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.tmp"), kAttributeHidden));
  clsFileProp properties(platform.files);

  EXPECT_EQ(properties.FindFileInfo(path_of("a.tmp")), 1);

  EXPECT_EQ(properties.ByteSize(), "5");
  EXPECT_TRUE(properties.Hidden());
  EXPECT_FALSE(properties.ReadOnly());
  EXPECT_FALSE(properties.Directory());
  EXPECT_EQ(properties.FileName(), upper_case(path_of("a.tmp")));
  EXPECT_NE(properties.CreationTime(), "1/1/1601 0:0:0");
}

TEST_F(FilePropertiesContract, OfABigFileTellTheHighHalfOfItsSize) {
  machine->add_big_file(path_of("big"), 0x1'0000'0005);
  clsFileProp properties(platform.files);

  properties.FindFileInfo(path_of("big"));

  EXPECT_EQ(properties.ByteSize(), "1");
}

TEST_F(FilePropertiesContract, OfAFolderTellNoDirectory) {
  machine->add_folder(path_of("inner"));
  clsFileProp properties(platform.files);

  properties.FindFileInfo(path_of("inner"));

  EXPECT_FALSE(properties.Directory());
  EXPECT_NE(properties.LastWriteTime(), "1/1/1601 0:0:0");
}

TEST_F(FilePropertiesContract, OfNothingTellTheYear1601) {
  clsFileProp properties(platform.files);

  EXPECT_EQ(properties.FindFileInfo(path_of("none")), 1);

  EXPECT_EQ(properties.ByteSize(), "");
  EXPECT_EQ(properties.LastWriteTime(), "1/1/1601 0:0:0");
  EXPECT_EQ(properties.LastAccessTime(), "1/1/1601");
}

TEST_F(FilePropertiesContract, OfAPatternTellTheFirstMatch) {
  machine->add_file(path_of("b.log"), "123");
  machine->add_file(path_of("a.log"), "12");
  clsFileProp properties(platform.files);

  properties.FindFileInfo(path_of("?.log"));

  EXPECT_EQ(properties.ByteSize(), "2");
}

}  // namespace
}  // namespace quillvane
