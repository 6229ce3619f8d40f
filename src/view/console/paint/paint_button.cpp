// paint button: one button in one state.

#include <CLI/CLI.hpp>
#include <memory>
#include <utility>

#include "controls/bitmap_canvas.h"
#include "controls/button_painter.h"
#include "view/console/paint/paint_words.h"

namespace quillvane {

namespace {

// As they were given; empty when not.
struct ButtonWords {
  std::string file;
  std::string type;
  std::string size;
  std::string state;
  std::string scheme;
  std::string back;
  std::string back_over;
  std::string fore;
  std::string fore_over;
  std::string caption;
  std::string check;
  std::string effect;
  std::string focus_rect;
  bool focus = false;
  bool is_default = false;
  bool soft = false;
};

void read_colors(PaintWords& words, const ButtonWords& given, ButtonColors& colors) {
  int scheme = static_cast<int>(colors.scheme);
  words.read("--scheme", given.scheme, kFirstColorScheme, kLastColorScheme, scheme);
  colors.scheme = static_cast<ColorScheme>(scheme);
  // As at design time: a colour is the one under the mouse too, until that gets its own.
  words.read_color("--back", given.back, colors.back);
  colors.back_over = colors.back;
  words.read_color("--back-over", given.back_over, colors.back_over);
  words.read_color("--fore", given.fore, colors.fore);
  colors.fore_over = colors.fore;
  words.read_color("--fore-over", given.fore_over, colors.fore_over);
  colors.soft_bevel = given.soft;
}

void read_state(PaintWords& words, const ButtonWords& given, ButtonPaint& button) {
  const std::string& state = given.state;
  if (!state.empty() && state != "normal" && state != "over" && state != "pressed" &&
      state != "disabled") {
    words.wrong("--state", "needs normal, over, pressed or disabled");
  }
  bool is_checked = false;
  words.read_switch("--check", given.check, is_checked);
  button.enabled = state != "disabled";
  button.pressed = state == "pressed" || is_checked;
  button.hovering = state == "over" || state == "pressed";
  button.focused = given.focus;
  button.is_default = given.is_default;
}

ButtonPaint read_button(PaintWords& words, const ButtonWords& given) {
  ButtonPaint button;
  words.read("--type", given.type, kFirstButtonType, kLastButtonType, button.type);
  words.read_size("--size", given.size, button.size);
  read_state(words, given, button);
  read_colors(words, given, button.colors);
  words.read("--effect", given.effect, INT32_MIN, INT32_MAX, button.special_effect);
  words.read_switch("--focus-rect", given.focus_rect, button.show_focus_rect);
  button.caption = given.caption;
  return button;
}

int paint(const ConsoleSession& session, const ButtonWords& given) {
  PaintWords words;
  const ButtonPaint button = read_button(words, given);
  if (words.problem()) {
    session.problem(*words.problem());
    return kWrongWords;
  }
  const bool has_caption = !button.caption.empty();
  if (has_caption && !can_write_captions(session)) return kNotDone;
  Image picture(button.size.width, button.size.height);
  BitmapCanvas canvas(picture, has_caption ? &session.io.pictures->text : nullptr);
  paint_button(canvas, button);
  return write_picture(session, given.file, picture);
}

}  // namespace

std::function<int()> prepare_paint_button(CLI::App& app, ConsoleSession& session) {
  const auto given = std::make_shared<ButtonWords>();
  app.add_option("FILE", given->file, "The PNG file to write")->required();
  app.add_option("--type", given->type, "Its look, 1 to 14")->type_name("N")->required();
  app.add_option("--size", given->size, "In pixels")->type_name("WxH")->required();
  app.add_option("--state", given->state, "normal, over, pressed or disabled")->type_name("STATE");
  app.add_option("--scheme", given->scheme,
                 "1 system's colours, 2 its own, 3 fixed, 4 the container's")
      ->type_name("N");
  const std::pair<const char*, std::string&> colors[] = {{"--back", given->back},
                                                         {"--back-over", given->back_over},
                                                         {"--fore", given->fore},
                                                         {"--fore-over", given->fore_over}};
  for (const auto& [option, word] : colors) {
    app.add_option(option, word, "A colour of its own: 0xBBGGRR")->type_name("COLOUR");
  }
  app.add_option("--caption", given->caption, "Its text")->type_name("TEXT");
  app.add_flag("--focus", given->focus, "It has the focus");
  app.add_flag("--default", given->is_default, "Enter presses it");
  app.add_flag("--soft", given->soft, "Softer edges (SoftBevel)");
  app.add_option("--check", given->check, "A button that stays down: on or off")->type_name("WORD");
  app.add_option("--effect", given->effect, "1 raises the caption, others sink it")->type_name("N");
  app.add_option("--focus-rect", given->focus_rect, "Whether it shows its focus: on or off")
      ->type_name("WORD");
  return [given, &session] { return paint(session, *given); };
}

}  // namespace quillvane
