#include "view/console/paint/gallery.h"

#include <string>
#include <utility>
#include <vector>

#include "controls/bitmap_canvas.h"
#include "controls/button_painter.h"
#include "controls/shadow_picture.h"
#include "controls/xp_progress_bar.h"
#include "forms/window.h"
#include "platform/virtual/queued_dialogs.h"

namespace quillvane {

namespace {

constexpr Size kSheet = {1672, 1716};
constexpr Size kButton = {92, 26};
constexpr Size kCell = {104, 34};
constexpr int kRowLabel = 62;
constexpr int kHeading = 52;  // height of a block's title and the captions of its columns
constexpr int kBlockWidth = kRowLabel + 7 * kCell.width + 26;
constexpr int kBlockHeight = kHeading + kLastButtonType * kCell.height + 16;
constexpr Point kFirstBlock = {24, 24};
constexpr Color kInk = 0x202020;

// One column of a block of buttons: what is not its type.
struct Column {
  const char* caption;
  ButtonPaint button;
};

const std::vector<Column>& states() {
  static const std::vector<Column> columns = {
      {"normal", {}},
      {"over", {.hovering = true}},
      {"pressed", {.pressed = true, .hovering = true}},
      {"disabled", {.enabled = false}},
      {"focus", {.focused = true}},
      {"default", {.is_default = true}},
      {"checked", {.pressed = true}},
  };
  return columns;
}

const std::vector<Column>& effects() {
  static const std::vector<Column> columns = {
      {"raised", {.special_effect = 1}},
      {"sunk", {.special_effect = 2}},
      {"raised, over", {.hovering = true, .special_effect = 1}},
      {"sunk, pressed", {.pressed = true, .hovering = true, .special_effect = 2}},
      {"soft", {.colors = {.scheme = ColorScheme::kCustom, .soft_bevel = true}}},
      {"soft, over",
       {.colors = {.scheme = ColorScheme::kCustom, .soft_bevel = true}, .hovering = true}},
      {"soft, pressed",
       {.colors = {.scheme = ColorScheme::kCustom, .soft_bevel = true},
        .pressed = true,
        .hovering = true}},
  };
  return columns;
}

struct Scheme {
  const char* title;
  ButtonColors colors;
};

constexpr Scheme kSchemes[] = {
    {"Buttons, scheme 1: the system's colours", {.scheme = ColorScheme::kSystem}},
    {"Buttons, scheme 2: colours of their own",
     {.scheme = ColorScheme::kCustom,
      .back = 0xE6C8A0,
      .back_over = 0xB4DCFF,
      .fore = 0x402000,
      .fore_over = 0x0020A0}},
    {"Buttons, scheme 3: fixed colours", {.scheme = ColorScheme::kFixed}},
    {"Buttons, scheme 4: the container's colours", {.scheme = ColorScheme::kContainer}},
};

class Sheet {
 public:
  explicit Sheet(TextRaster& text)
      : picture_(kSheet.width, kSheet.height), canvas_(picture_, &text), text_(text) {
    canvas_.fill({0, 0, kSheet.width, kSheet.height}, bitmap_colors().container_back);
  }

  // Its left and top lie at `at`.
  void write(Point at, const std::string& text, bool bold = false) {
    const FontStyle font{.bold = bold};
    canvas_.set_origin({0, 0});
    canvas_.text({at.x, at.y, text_.width(text, font), text_.metrics(font).height}, text, font,
                 kInk);
  }

  // The buttons of all types below each other, with what `columns` says of them beside each other.
  // `colors` stands in where a column has none of its own.
  void buttons(Point at, const char* title, const std::vector<Column>& columns,
               const ButtonColors& colors) {
    write(at, title, true);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      write({at.x + kRowLabel + static_cast<int>(i) * kCell.width, at.y + 26}, columns[i].caption);
    }
    for (int type = kFirstButtonType; type <= kLastButtonType; ++type) {
      const int top = at.y + kHeading + (type - 1) * kCell.height;
      write({at.x, top + 6}, "Type " + std::to_string(type));
      for (std::size_t i = 0; i < columns.size(); ++i) {
        ButtonPaint button = columns[i].button;
        button.type = type;
        button.size = kButton;
        button.caption = "&Quillvane";
        if (!button.colors.soft_bevel) button.colors = colors;
        canvas_.set_origin({at.x + kRowLabel + static_cast<int>(i) * kCell.width, top});
        paint_button(canvas_, button);
      }
    }
  }

  void bars(Point at) {
    constexpr Size kBar = {150, 20};
    constexpr int kRow = 34;
    struct Sample {
      const char* caption;
      int style;
      int value;
    };
    constexpr Sample kSamples[] = {
        {"blocks, 65", 0, 65}, {"blocks, 100", 0, 100}, {"smooth, 65", 1, 65}, {"smooth, 0", 1, 0}};
    write(at, "Progress bars of 0 to 100", true);
    int left = at.x + kRowLabel + 28;
    for (const Sample& sample : kSamples) {
      write({left, at.y + 26}, sample.caption);
      for (int look = 0; look < kBarLooks; ++look) {
        canvas_.set_origin({left, at.y + kHeading + look * kRow});
        paint_bar(kBar, sample.style, sample.value, look);
      }
      left += kBar.width + 14;
    }
    for (int look = 0; look < kBarLooks; ++look) {
      write({at.x, at.y + kHeading + look * kRow + 3},
            std::to_string(look) + " " + std::string(block_pictures_name(look)));
    }
  }

  void shadows(Point at) {
    constexpr Size kWindow = {96, 56};
    constexpr ShadowLook kLooks[] = {{5, 0x808080, 25, 50},
                                     {20, 0x000000, 25, 60},
                                     {20, 0x000000, 50, 60},
                                     {20, 0xFF0000, 75, 60}};
    write(at, "Window shadows", true);
    int left = at.x;
    for (const ShadowLook& look : kLooks) {
      const std::string about = std::to_string(look.size) + " px, curve " +
                                std::to_string(look.curve) + ", " + std::to_string(look.opacity) +
                                " %";
      write({left, at.y + 26}, about);
      const Image shadow = shadow_picture(kWindow, look);
      const Point window = {left + 34, at.y + kHeading + 26};
      canvas_.picture({window.x - look.size, window.y - look.size, shadow.width, shadow.height},
                      shadow);
      const Rect body{window.x, window.y, kWindow.width, kWindow.height};
      canvas_.fill(body, 0xFFFFFF);
      left += 190;
    }
  }

  [[nodiscard]] Image take() { return std::move(picture_); }

 private:
  void paint_bar(Size size, int style, int value, int look) {
    Window window("gallery");
    EffectLog effects;
    QueuedDialogs no_dialogs(effects);
    Xp_ProgressBar bar(window, "bar", no_dialogs);
    bar.set_style(style);
    bar.set_look(look);
    bar.set_value(value);
    bar.resize(canvas_, size);
    bar.draw(canvas_);
  }

  Image picture_;
  BitmapCanvas canvas_;
  TextRaster& text_;
};

}  // namespace

Image make_gallery(TextRaster& text) {
  Sheet sheet(text);
  int number = 0;
  const auto block = [](int index) {
    return Point{kFirstBlock.x + index % 2 * kBlockWidth, kFirstBlock.y + index / 2 * kBlockHeight};
  };
  for (const Scheme& scheme : kSchemes) {
    sheet.buttons(block(number++), scheme.title, states(), scheme.colors);
  }
  sheet.buttons(block(number++), "Buttons, effects of the caption and soft edges", effects(),
                kSchemes[0].colors);
  const Point last = block(number);
  sheet.bars(last);
  sheet.shadows({last.x, last.y + 350});
  return sheet.take();
}

}  // namespace quillvane
