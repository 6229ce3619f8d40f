// paint shadow: the shadow around a window.

#include <CLI/CLI.hpp>
#include <memory>

#include "controls/shadow_picture.h"
#include "view/console/paint/paint_words.h"

namespace quillvane {

namespace {

struct ShadowWords {
  std::string file;
  std::string size;
  std::string depth;
  std::string color;
  std::string curve;
  std::string opacity;
};

int paint(const ConsoleSession& session, const ShadowWords& given) {
  constexpr int kWhole = 100;  // percent
  PaintWords words;
  Size size;
  ShadowLook look;
  words.read_size("--size", given.size, size);
  words.read("--depth", given.depth, kLeastShadow, kMostShadow, look.size);
  words.read_color("--colour", given.color, look.color);
  words.read("--curve", given.curve, 0, kWhole, look.curve);
  words.read("--opacity", given.opacity, 0, kWhole, look.opacity);
  if (words.problem()) {
    session.problem(*words.problem());
    return kWrongWords;
  }
  return write_picture(session, given.file, shadow_picture(size, look));
}

}  // namespace

std::function<int()> prepare_paint_shadow(CLI::App& app, ConsoleSession& session) {
  const auto given = std::make_shared<ShadowWords>();
  app.add_option("FILE", given->file, "The PNG file to write")->required();
  app.add_option("--size", given->size, "The window's, in pixels")->type_name("WxH")->required();
  app.add_option("--depth", given->depth, "Pixels of shadow on each side, 1 to 100 (40)")
      ->type_name("N");
  app.add_option("--colour", given->color, "0xBBGGRR (0xFF0000)")->type_name("COLOUR");
  app.add_option("--curve", given->curve, "How it falls off, in percent (25)")->type_name("P");
  app.add_option("--opacity", given->opacity, "At the window, in percent (50)")->type_name("P");
  return [given, &session] { return paint(session, *given); };
}

}  // namespace quillvane
