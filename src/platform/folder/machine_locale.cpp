#include "platform/folder/machine_locale.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quillvane {

namespace {

struct Setting {
  int type;
  std::string_view text;
};

constexpr Setting kSettings[] = {
    {14, "."},                   // decimal point
    {15, ","},                   // between groups of digits
    {16, "3;0"},                 // digits in a group
    {17, "2"},                   // digits behind the point
    {18, "1"},                   // a 0 before the point
    {20, "$"},                   // currency
    {29, "/"},                   // between parts of a date
    {30, ":"},                   // between parts of a time
    {31, "M/d/yyyy"},            // short date
    {32, "dddd, MMMM d, yyyy"},  // long date
    {42, "Monday"},
    {43, "Tuesday"},
    {44, "Wednesday"},
    {45, "Thursday"},
    {46, "Friday"},
    {47, "Saturday"},
    {48, "Sunday"},
    {49, "Mon"},
    {50, "Tue"},
    {51, "Wed"},
    {52, "Thu"},
    {53, "Fri"},
    {54, "Sat"},
    {55, "Sun"},
    {56, "January"},
    {57, "February"},
    {58, "March"},
    {59, "April"},
    {60, "May"},
    {61, "June"},
    {62, "July"},
    {63, "August"},
    {64, "September"},
    {65, "October"},
    {66, "November"},
    {67, "December"},
    {68, "Jan"},
    {69, "Feb"},
    {70, "Mar"},
    {71, "Apr"},
    {72, "May"},
    {73, "Jun"},
    {74, "Jul"},
    {75, "Aug"},
    {76, "Sep"},
    {77, "Oct"},
    {78, "Nov"},
    {79, "Dec"},
    {80, ""},                 // sign of positive numbers
    {81, "-"},                // sign of negative numbers
    {82, "3"},                // where a positive amount has its sign: right before the currency
    {83, "0"},                // a negative one: parentheses
    {4097, "English"},        // the language, in English
    {4098, "United States"},  // the country, in English
    {4099, "h:mm:ss tt"},     // time
};

}  // namespace

std::optional<std::string> MachineLocale::text(int type) const {
  const auto* found = std::find_if(std::begin(kSettings), std::end(kSettings),
                                   [type](const Setting& setting) { return setting.type == type; });
  if (found == std::end(kSettings)) return std::nullopt;
  return std::string(found->text);
}

}  // namespace quillvane
