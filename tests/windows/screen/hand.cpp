#include "tests/windows/screen/hand.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>
#include <sstream>

namespace quillvane {

namespace {

std::string ask(const std::string& request) {
  std::printf("@%s\n", request.c_str());
  std::fflush(stdout);
  std::string answer;
  EXPECT_TRUE(std::getline(std::cin, answer)) << request;
  return answer;
}

void use(const std::string& words) { EXPECT_EQ(ask("xdotool " + words), "done") << words; }

std::string numbers(const RECT& area) {
  return std::to_string(area.left) + " " + std::to_string(area.top) + " " +
         std::to_string(area.right - area.left) + " " + std::to_string(area.bottom - area.top);
}

std::string moved_to(POINT place) {
  return "mousemove " + std::to_string(place.x) + " " + std::to_string(place.y) + " ";
}

}  // namespace

void click_at(POINT place) { use(moved_to(place) + "click 1"); }

void right_click_at(POINT place) { use(moved_to(place) + "click 3"); }

void double_click_at(POINT place) { use(moved_to(place) + "click --repeat 2 --delay 60 1"); }

void press_keys(const std::string& keys) { use("key --clearmodifiers " + keys); }

void type_text(const std::string& text) { use("type --clearmodifiers --delay 20 " + text); }

std::set<COLORREF> colors_in(const RECT& area) {
  std::istringstream words(ask("colors " + numbers(area)));
  std::set<COLORREF> colors;
  std::string word;
  while (words >> word) {
    const auto number = std::stoul(word.substr(1), nullptr, 16);  // "#RRGGBB"
    colors.insert(RGB((number >> 16) & 0xFF, (number >> 8) & 0xFF, number & 0xFF));
  }
  return colors;
}

bool shows_color(const RECT& area, COLORREF color) { return colors_in(area).contains(color); }

void keep_picture(const std::string& name, const RECT& area) {
  EXPECT_EQ(ask("picture " + name + " " + numbers(area)), "done");
}

}  // namespace quillvane
