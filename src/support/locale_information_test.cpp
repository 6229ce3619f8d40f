#include "support/locale_information.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

// Answers each number with its digits, but for those that the test sets.
class Numbers final : public LocaleSettings {
 public:
  [[nodiscard]] std::optional<std::string> text(int type) const override {
    if (type == 14) return decimal;
    return std::to_string(type);
  }

  std::optional<std::string> decimal;
};

struct Stage {
  [[nodiscard]] GetInfomation information() {
    return GetInfomation(machine.platform().with({.locale = &numbers}));
  }

  TempMachine machine;
  Numbers numbers;
};

TEST(LocaleInformation, EachPropertyAsksForItsOwnNumber) {
  Stage stage;
  const GetInfomation info = stage.information();

  EXPECT_EQ(info.GetPositiveSignPosition(), "82");
  EXPECT_EQ(info.GetNegativeSignPosition(), "83");
  EXPECT_EQ(info.GetNegativeSign(), "81");
  EXPECT_EQ(info.GetPositiveSign(), "80");
  EXPECT_EQ(info.GetShortMonthName1(), "68");
  EXPECT_EQ(info.GetShortMonthName12(), "79");
  EXPECT_EQ(info.GetLongMonthName1(), "56");
  EXPECT_EQ(info.GetLongMonthName12(), "67");
  EXPECT_EQ(info.GetTimeFormat(), "4099");
  EXPECT_EQ(info.GetShortDateFormat(), "31");
  EXPECT_EQ(info.GetTimeSeparator(), "30");
  EXPECT_EQ(info.GetDateSeparator(), "29");
  EXPECT_EQ(info.GetLeadingZerosForDecimal(), "18");
  EXPECT_EQ(info.GetNumberOfFractionalDigits(), "17");
  EXPECT_EQ(info.GetDigitGrouping(), "16");
  EXPECT_EQ(info.GetThousandSeparator(), "15");
  EXPECT_EQ(info.GetCurrencySymbol(), "20");
  EXPECT_EQ(info.GetLanguage(), "4097");
  EXPECT_EQ(info.GetCountry(), "4098");
  EXPECT_EQ(info.GetLongDateFormat(), "32");
  EXPECT_EQ(info.GetLongNameDay1(), "42");
  EXPECT_EQ(info.GetLongNameDay7(), "48");
  EXPECT_EQ(info.GetShortNameDay1(), "49");
  EXPECT_EQ(info.GetShortNameDay7(), "55");
}

TEST(LocaleInformation, ASettingThatIsNotThereIsEmpty) {
  Stage stage;

  EXPECT_EQ(stage.information().GetDecimalSeparator(), "");
}

TEST(LocaleInformation, ALongSettingIsCutByTheBuffer) {
  Stage stage;
  stage.numbers.decimal = std::string(98, 'a');
  EXPECT_EQ(stage.information().GetDecimalSeparator(), std::string(98, 'a'));

  stage.numbers.decimal = std::string(99, 'a');
  EXPECT_EQ(stage.information().GetDecimalSeparator(), std::string(98, 'a'));

  stage.numbers.decimal = std::string(97, 'a') + "äöü";
  EXPECT_EQ(stage.information().GetDecimalSeparator(), std::string(97, 'a') + "ä");
}

TEST(LocaleInformation, TheEnvironmentIsReadByName) {
  Stage stage;
  stage.machine.set_environment("TEMP", "D:\\Temp");
  stage.machine.set_environment("SystemDrive", "");
  const GetInfomation info = stage.information();

  EXPECT_EQ(info.TempDir(), "D:\\Temp");
  EXPECT_EQ(info.GetOS(), "Windows_NT");
  EXPECT_EQ(info.GetUserName(), "User");
  EXPECT_EQ(info.GetWinDir(), "C:\\Windows");
  EXPECT_EQ(info.GetSystemDrive(), "");
  EXPECT_EQ(info.SystemDir(), "C:\\Windows\\System32");
}

TEST(LocaleInformation, OfAMachineFolderIsThatOfTheUnitedStates) {
  TempMachine machine;
  const GetInfomation info(machine.platform());

  EXPECT_EQ(info.GetLongNameDay1(), "Monday");
  EXPECT_EQ(info.GetShortNameDay7(), "Sun");
  EXPECT_EQ(info.GetLongMonthName2(), "February");
  EXPECT_EQ(info.GetShortMonthName12(), "Dec");
  EXPECT_EQ(info.GetPositiveSign(), "");
  EXPECT_EQ(info.GetLanguage(), "English");
  EXPECT_EQ(info.GetCountry(), "United States");
}

}  // namespace
}  // namespace quillvane
