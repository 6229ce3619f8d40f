#include "lang/character_set.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iterator>

#include "support/text.h"

namespace quillvane {

namespace {

struct Pair {
  int character_set;
  int code_page;
};

constexpr Pair kSystemPairs[] = {
    {0, 1252},   {1, 1252},   {2, 2},      {128, 932},  {129, 949},  {130, 949},  {134, 936},
    {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},  {238, 1257}, {255, 255},  {77, 77},
};

// The main window derives one set from each of these pages alone.
constexpr Pair kSetsOfPages[] = {
    {0, 1252},   {128, 932},  {129, 949},  {134, 936}, {136, 950},  {177, 1255}, {178, 1256},
    {161, 1253}, {162, 1254}, {163, 1258}, {222, 874}, {238, 1257}, {204, 1251},
};

// As fonts have it: the letters of set 238 are those of 1250.
constexpr Pair kTextPages[] = {
    {0, 1252},   {128, 932},  {129, 949},  {130, 949},  {134, 936},
    {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255},
    {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},  {238, 1250},
};

}  // namespace

std::optional<int> character_set_of_page(int code_page) {
  const auto* found = std::find_if(std::begin(kSetsOfPages), std::end(kSetsOfPages),
                                   [=](const Pair& pair) { return pair.code_page == code_page; });
  if (found == std::end(kSetsOfPages)) return std::nullopt;
  return found->character_set;
}

bool is_set_of_page(int character_set, int code_page) {
  return std::any_of(std::begin(kSystemPairs), std::end(kSystemPairs), [=](const Pair& pair) {
    return pair.character_set == character_set && pair.code_page == code_page;
  });
}

int text_page_of_set(int character_set) {
  const auto* found =
      std::find_if(std::begin(kTextPages), std::end(kTextPages),
                   [=](const Pair& pair) { return pair.character_set == character_set; });
  return found == std::end(kTextPages) ? 0 : found->code_page;
}

std::optional<int> character_set_from(std::string_view text) {
  const std::string_view number = Trim(text);
  std::int16_t set = 0;
  const char* end = number.data() + number.size();
  const auto [stopped, failed] = std::from_chars(number.data(), end, set);
  if (failed != std::errc() || stopped != end) return std::nullopt;
  return set;
}

}  // namespace quillvane
