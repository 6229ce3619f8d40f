// The user's regional settings and a few places of the system, as properties.
#pragma once

#include <string>

#include "platform/platform.h"

namespace quillvane {

// GetInfomation: its name was spelled so long ago.
class GetInfomation {
 public:
  // What `platform` refers to must outlive it.
  explicit GetInfomation(const Platform& platform) : platform_(platform) {}

  // --- Settings, by Windows' numbers; day 1 is a Monday. Empty where there is none.
  [[nodiscard]] std::string GetPositiveSignPosition() const { return setting(82); }
  [[nodiscard]] std::string GetNegativeSignPosition() const { return setting(83); }
  [[nodiscard]] std::string GetNegativeSign() const { return setting(81); }
  [[nodiscard]] std::string GetPositiveSign() const { return setting(80); }
  [[nodiscard]] std::string GetShortMonthName1() const { return setting(68); }
  [[nodiscard]] std::string GetShortMonthName2() const { return setting(69); }
  [[nodiscard]] std::string GetShortMonthName3() const { return setting(70); }
  [[nodiscard]] std::string GetShortMonthName4() const { return setting(71); }
  [[nodiscard]] std::string GetShortMonthName5() const { return setting(72); }
  [[nodiscard]] std::string GetShortMonthName6() const { return setting(73); }
  [[nodiscard]] std::string GetShortMonthName7() const { return setting(74); }
  [[nodiscard]] std::string GetShortMonthName8() const { return setting(75); }
  [[nodiscard]] std::string GetShortMonthName9() const { return setting(76); }
  [[nodiscard]] std::string GetShortMonthName10() const { return setting(77); }
  [[nodiscard]] std::string GetShortMonthName11() const { return setting(78); }
  [[nodiscard]] std::string GetShortMonthName12() const { return setting(79); }
  [[nodiscard]] std::string GetLongMonthName1() const { return setting(56); }
  [[nodiscard]] std::string GetLongMonthName2() const { return setting(57); }
  [[nodiscard]] std::string GetLongMonthName3() const { return setting(58); }
  [[nodiscard]] std::string GetLongMonthName4() const { return setting(59); }
  [[nodiscard]] std::string GetLongMonthName5() const { return setting(60); }
  [[nodiscard]] std::string GetLongMonthName6() const { return setting(61); }
  [[nodiscard]] std::string GetLongMonthName7() const { return setting(62); }
  [[nodiscard]] std::string GetLongMonthName8() const { return setting(63); }
  [[nodiscard]] std::string GetLongMonthName9() const { return setting(64); }
  [[nodiscard]] std::string GetLongMonthName10() const { return setting(65); }
  [[nodiscard]] std::string GetLongMonthName11() const { return setting(66); }
  [[nodiscard]] std::string GetLongMonthName12() const { return setting(67); }
  [[nodiscard]] std::string GetTimeFormat() const { return setting(4099); }
  [[nodiscard]] std::string GetShortDateFormat() const { return setting(31); }
  [[nodiscard]] std::string GetTimeSeparator() const { return setting(30); }
  [[nodiscard]] std::string GetDateSeparator() const { return setting(29); }
  [[nodiscard]] std::string GetLeadingZerosForDecimal() const { return setting(18); }
  [[nodiscard]] std::string GetNumberOfFractionalDigits() const { return setting(17); }
  [[nodiscard]] std::string GetDigitGrouping() const { return setting(16); }
  [[nodiscard]] std::string GetThousandSeparator() const { return setting(15); }
  [[nodiscard]] std::string GetCurrencySymbol() const { return setting(20); }
  [[nodiscard]] std::string GetLanguage() const { return setting(4097); }
  [[nodiscard]] std::string GetCountry() const { return setting(4098); }
  [[nodiscard]] std::string GetLongDateFormat() const { return setting(32); }
  [[nodiscard]] std::string GetLongNameDay1() const { return setting(42); }
  [[nodiscard]] std::string GetLongNameDay2() const { return setting(43); }
  [[nodiscard]] std::string GetLongNameDay3() const { return setting(44); }
  [[nodiscard]] std::string GetLongNameDay4() const { return setting(45); }
  [[nodiscard]] std::string GetLongNameDay5() const { return setting(46); }
  [[nodiscard]] std::string GetLongNameDay6() const { return setting(47); }
  [[nodiscard]] std::string GetLongNameDay7() const { return setting(48); }
  [[nodiscard]] std::string GetShortNameDay1() const { return setting(49); }
  [[nodiscard]] std::string GetShortNameDay2() const { return setting(50); }
  [[nodiscard]] std::string GetShortNameDay3() const { return setting(51); }
  [[nodiscard]] std::string GetShortNameDay4() const { return setting(52); }
  [[nodiscard]] std::string GetShortNameDay5() const { return setting(53); }
  [[nodiscard]] std::string GetShortNameDay6() const { return setting(54); }
  [[nodiscard]] std::string GetShortNameDay7() const { return setting(55); }
  [[nodiscard]] std::string GetDecimalSeparator() const { return setting(14); }

  // --- Values of the environment, empty when unset.
  [[nodiscard]] std::string TempDir() const { return variable("temp"); }
  [[nodiscard]] std::string GetOS() const { return variable("os"); }
  [[nodiscard]] std::string GetUserName() const { return variable("username"); }
  [[nodiscard]] std::string GetSystemDrive() const { return variable("systemdrive"); }
  [[nodiscard]] std::string GetWinDir() const { return variable("windir"); }

  // The folder of the system's programs; empty when its path has 144 characters or more.
  [[nodiscard]] std::string SystemDir() const;

 private:
  // A text of 99 characters or more is cut to the 98 that the buffer of old held.
  [[nodiscard]] std::string setting(int type) const;
  [[nodiscard]] std::string variable(const char* name) const;

  Platform platform_;
};

}  // namespace quillvane
