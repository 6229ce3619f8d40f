#include "tests/windows/screen/hand.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <iostream>

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

bool shows_color(const RECT& area, COLORREF color) {
  char text[16];
  std::snprintf(text, sizeof(text), "#%02X%02X%02X", static_cast<unsigned>(GetRValue(color)),
                static_cast<unsigned>(GetGValue(color)), static_cast<unsigned>(GetBValue(color)));
  return ask("colors " + numbers(area)).find(text) != std::string::npos;
}

void keep_picture(const std::string& name, const RECT& area) {
  EXPECT_EQ(ask("picture " + name + " " + numbers(area)), "done");
}

}  // namespace quillvane
