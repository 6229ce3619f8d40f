// paint bar: a progress bar at one value, or on its way from another.

#include <CLI/CLI.hpp>
#include <memory>

#include "controls/bitmap_canvas.h"
#include "controls/xp_progress_bar.h"
#include "forms/window.h"
#include "platform/virtual/queued_dialogs.h"
#include "view/console/paint/paint_words.h"

namespace quillvane {

namespace {

struct BarWords {
  std::string file;
  std::string size;
  std::string minimum;
  std::string maximum;
  std::string value;
  std::string style;
  std::string look;
  std::string from;
};

struct BarNumbers {
  int minimum = 0;
  int maximum = 100;
  int value = 0;
  int from = 0;
  int style = 0;
  int look = 0;
};

BarNumbers read_numbers(PaintWords& words, const BarWords& given) {
  const auto read_any = [&](const char* option, const std::string& word, int& number) {
    words.read(option, word, INT32_MIN, INT32_MAX, number);
  };
  BarNumbers numbers;
  read_any("--min", given.minimum, numbers.minimum);
  read_any("--max", given.maximum, numbers.maximum);
  read_any("--value", given.value, numbers.value);
  read_any("--from", given.from, numbers.from);
  words.read("--style", given.style, 0, 1, numbers.style);
  words.read("--look", given.look, 0, kBarLooks - 1, numbers.look);
  return numbers;
}

int paint(const ConsoleSession& session, const BarWords& given) {
  PaintWords words;
  Size size;
  words.read_size("--size", given.size, size);
  const BarNumbers numbers = read_numbers(words, given);
  EffectLog effects;
  QueuedDialogs dialogs(effects);
  Window window("paint");
  Xp_ProgressBar bar(window, "bar", dialogs);
  Image picture(size.width, size.height);
  BitmapCanvas canvas(picture, nullptr);
  // The larger end first: a range above the usual one is no minimum above the maximum.
  bar.set_maximum(numbers.maximum);
  bar.set_minimum(numbers.minimum);
  bar.set_style(numbers.style);
  bar.set_look(numbers.look);
  bar.resize(canvas, size);
  if (!given.from.empty()) {
    bar.set_value(numbers.from);
    bar.draw(canvas);
  }
  bar.set_value(numbers.value);
  bar.draw(canvas);
  // What it says in a message box is what is wrong with the words.
  for (const ShownBox& box : dialogs.take_boxes()) words.wrong("paint bar", box.text);
  if (words.problem()) {
    session.problem(*words.problem());
    return kWrongWords;
  }
  return write_picture(session, given.file, picture);
}

}  // namespace

std::function<int()> prepare_paint_bar(CLI::App& app, ConsoleSession& session) {
  const auto given = std::make_shared<BarWords>();
  app.add_option("FILE", given->file, "The PNG file to write")->required();
  app.add_option("--size", given->size, "In pixels")->type_name("WxH")->required();
  app.add_option("--min", given->minimum, "The value of an empty bar (0)")->type_name("N");
  app.add_option("--max", given->maximum, "The value of a full bar (100)")->type_name("N");
  app.add_option("--value", given->value, "What it shows (0)")->type_name("N");
  app.add_option("--style", given->style, "0 in blocks, 1 without gaps")->type_name("N");
  app.add_option("--look", given->look, "Its colour, 0 to 7")->type_name("N");
  app.add_option("--from", given->from, "What it showed before")->type_name("N");
  return [given, &session] { return paint(session, *given); };
}

}  // namespace quillvane
