// paint and gallery: their words and what becomes of them.
#include <gtest/gtest.h>

#include <sstream>

#include "controls/bitmap_canvas.h"
#include "controls/button_painter.h"
#include "controls/shadow_picture.h"
#include "tests/support/block_raster.h"
#include "view/console/console.h"

namespace quillvane {
namespace {

// Nobody asks these commands for a machine.
class NoMachines final : public MachineHost {
 public:
  std::variant<std::unique_ptr<ConsoleMachine>, HostProblem> open(
      const std::optional<std::string>& /*dir*/, std::ostream& /*notices*/) override {
    ADD_FAILURE() << "a machine is opened";
    return HostProblem{"none"};
  }
  std::optional<HostProblem> create(const std::string& /*dir*/, bool /*demo*/) override {
    return HostProblem{"none"};
  }
  std::variant<MachineSummary, HostProblem> describe(const std::string& /*dir*/) override {
    return HostProblem{"none"};
  }
  std::variant<std::string, HostProblem> export_registry(const std::string& /*dir*/) override {
    return HostProblem{"none"};
  }
  std::optional<HostProblem> import_registry(const std::string& /*dir*/,
                                             const std::string& /*content*/) override {
    return HostProblem{"none"};
  }
  const CodePage* code_page(int /*number*/) const override { return nullptr; }
};

class KeptFiles final : public PictureFile {
 public:
  std::optional<std::string> write_png(const std::string& path, const Image& picture) override {
    if (fails) return "cannot be written";
    written = path;
    image = picture;
    return std::nullopt;
  }

  bool fails = false;
  std::string written;
  Image image;
};

class NoFont final : public TextRaster {
 public:
  std::optional<std::string> problem() override { return "fonts: none is there"; }
  LineMetrics metrics(const FontStyle& /*font*/) override { return {}; }
  int width(std::string_view /*text*/, const FontStyle& /*font*/) override { return 0; }
  Coverage draw(std::string_view /*text*/, const FontStyle& /*font*/) override { return {}; }
};

struct Stage {
  int run(std::vector<std::string> words) {
    PictureTools tools{*raster, files};
    ConsoleIo io{.in = in, .out = out, .err = err, .pictures = &tools};
    return run_console(words, io, machines);
  }
  // `paint button` with these words behind its type and size.
  int button(int type, const std::vector<std::string>& more) {
    std::vector<std::string> words = {"paint",  "button", "b.png", "--type", std::to_string(type),
                                      "--size", "40x20"};
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
  }
  [[nodiscard]] Color at(int x, int y) const { return files.image.at(x, y) & 0xFFFFFFU; }

  BlockRaster blocks;
  TextRaster* raster = &blocks;
  KeptFiles files;
  NoMachines machines;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

Image painted(ButtonPaint button) {
  button.size = {40, 20};
  Image image(40, 20);
  BlockRaster raster;
  BitmapCanvas canvas(image, &raster);
  paint_button(canvas, button);
  return image;
}

TEST(PaintButton, DrawsWhatItsWordsSay) {
  Stage stage;
  EXPECT_EQ(stage.button(7, {}), 0);
  EXPECT_EQ(stage.files.written, "b.png");
  EXPECT_EQ(stage.files.image, painted({.type = 7}));
  EXPECT_EQ(stage.err.str() + stage.out.str(), "");

  stage.button(9, {"--state", "over", "--caption", "&ab"});
  EXPECT_EQ(stage.files.image, painted({.type = 9, .caption = "&ab", .hovering = true}));
  stage.button(9, {"--state", "pressed"});
  EXPECT_EQ(stage.files.image, painted({.type = 9, .pressed = true, .hovering = true}));
  stage.button(9, {"--state", "disabled"});
  EXPECT_EQ(stage.files.image, painted({.type = 9, .enabled = false}));
  stage.button(9, {"--check", "on"});
  EXPECT_EQ(stage.files.image, painted({.type = 9, .pressed = true}));
  stage.button(9, {"--check", "off", "--state", "normal"});
  EXPECT_EQ(stage.files.image, painted({.type = 9}));
  stage.button(2, {"--focus"});
  EXPECT_EQ(stage.files.image, painted({.type = 2, .focused = true}));
  stage.button(2, {"--focus", "--focus-rect", "off"});
  EXPECT_EQ(stage.files.image, painted({.type = 2, .focused = true, .show_focus_rect = false}));
  stage.button(3, {"--default"});
  EXPECT_EQ(stage.files.image, painted({.type = 3, .is_default = true}));
  stage.button(8, {"--caption", "ab", "--effect", "1"});
  EXPECT_EQ(stage.files.image, painted({.type = 8, .caption = "ab", .special_effect = 1}));
}

TEST(PaintButton, TakesColoursOfItsOwn) {
  Stage stage;
  stage.button(8, {"--scheme", "2", "--back", "0x102030"});
  EXPECT_EQ(stage.at(20, 10), 0x102030U);
  stage.button(8, {"--scheme", "2", "--back", "0x102030", "--state", "over"});
  EXPECT_EQ(stage.at(20, 10), 0x102030U);
  stage.button(8, {"--scheme", "2", "--back", "1", "--back-over", "65535", "--state", "over"});
  EXPECT_EQ(stage.at(20, 10), 0x00FFFFU);
  // The letters begin at (14, 7).
  const std::vector<std::string> letters = {"--scheme", "2", "--fore", "0xFF", "--caption", "ab"};
  stage.button(8, letters);
  EXPECT_EQ(stage.at(14, 7), 0x0000FFU);
  auto over = letters;
  over.insert(over.end(), {"--state", "over"});
  stage.button(8, over);
  EXPECT_EQ(stage.at(14, 7), 0x0000FFU);
  over.insert(over.end(), {"--fore-over", "0xFF00"});
  stage.button(8, over);
  EXPECT_EQ(stage.at(14, 7), 0x00FF00U);
  stage.button(8, {"--scheme", "3"});
  EXPECT_EQ(stage.at(20, 10), 0xC0C0C0U);
  // A soft highlight of its own is 23 above the face, another 47.
  stage.button(7, {"--scheme", "2", "--back", "0x808080", "--soft"});
  EXPECT_EQ(stage.at(20, 0), 0x979797U);
}

TEST(PaintButton, IsTransparentOutsideOfItsShape) {
  Stage stage;
  stage.button(13, {});
  EXPECT_EQ(stage.files.image.at(0, 0), 0U);
  EXPECT_EQ(stage.files.image.at(20, 10) >> 24U, 0xFFU);
}

TEST(PaintButton, WordsThatAreOffDrawNothing) {
  struct Wrong {
    std::vector<std::string> words;
    const char* problem;
  };
  const Wrong wrong[] = {
      {{"--type", "0", "--size", "9x9"}, "--type: needs a whole number from 1 to 14"},
      {{"--type", "15", "--size", "9x9"}, "--type: needs a whole number from 1 to 14"},
      {{"--type", "x", "--size", "9x9"}, "--type: needs a whole number from 1 to 14"},
      {{"--type", "1", "--size", "0x9"}, "--size: needs WIDTHxHEIGHT, each from 1 to 8192"},
      {{"--type", "1", "--size", "9"}, "--size: needs WIDTHxHEIGHT, each from 1 to 8192"},
      {{"--type", "1", "--size", "9x8193"}, "--size: needs WIDTHxHEIGHT, each from 1 to 8192"},
      {{"--type", "1", "--size", "-9x9"}, "--size: needs WIDTHxHEIGHT, each from 1 to 8192"},
      {{"--type", "1"}, "paint button: --size is missing"},
      {{"--size", "9x9"}, "paint button: --type is missing"},
      {{"--type", "1", "--size", "9x9", "--state", "hot"},
       "--state: needs normal, over, pressed or disabled"},
      {{"--type", "1", "--size", "9x9", "--scheme", "5"},
       "--scheme: needs a whole number from 1 to 4"},
      {{"--type", "1", "--size", "9x9", "--back", "red"},
       "--back: needs a colour, 0xBBGGRR or a decimal number"},
      {{"--type", "1", "--size", "9x9", "--back", "0x1000000"},
       "--back: needs a colour, 0xBBGGRR or a decimal number"},
      {{"--type", "1", "--size", "9x9", "--fore-over", "-1"},
       "--fore-over: needs a colour, 0xBBGGRR or a decimal number"},
      {{"--type", "1", "--size", "9x9", "--check", "1"}, "--check: needs on or off"},
      {{"--type", "1", "--size", "9x9", "--focus-rect", "no"}, "--focus-rect: needs on or off"},
      {{"--type", "1", "--size", "9x9", "--effect", "1.5"},
       "--effect: needs a whole number of 32 bits"}};
  for (const Wrong& each : wrong) {
    Stage stage;
    std::vector<std::string> words = {"paint", "button", "b.png"};
    words.insert(words.end(), each.words.begin(), each.words.end());
    EXPECT_EQ(stage.run(words), 2) << each.problem;
    EXPECT_EQ(stage.err.str(), "quillvane: " + std::string(each.problem) + "\n");
    EXPECT_EQ(stage.files.written, "");
  }
}

TEST(PaintButton, NeedsAFontForACaptionAlone) {
  NoFont none;
  Stage stage;
  stage.raster = &none;
  EXPECT_EQ(stage.button(7, {}), 0);
  EXPECT_EQ(stage.button(7, {"--caption", "ab"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: fonts: none is there\n");
}

TEST(PaintButton, TellsAFileThatCannotBeWritten) {
  Stage stage;
  stage.files.fails = true;
  EXPECT_EQ(stage.button(7, {}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: b.png: cannot be written\n");
}

struct BarStage : Stage {
  int bar(std::vector<std::string> words) {
    words.insert(words.begin(), {"paint", "bar", "bar.png", "--size", "106x16"});
    return run(words);
  }
};

TEST(PaintBar, DrawsItsValue) {
  BarStage stage;
  EXPECT_EQ(stage.bar({"--min", "0", "--max", "100", "--value", "0"}), 0);
  const Image empty = stage.files.image;
  EXPECT_EQ(empty.width, 106);
  EXPECT_EQ(empty.height, 16);
  EXPECT_EQ(empty.at(3, 8), empty.at(102, 8));
  stage.bar({"--min", "200", "--max", "300", "--value", "250"});
  EXPECT_NE(stage.files.image.at(52, 8), empty.at(52, 8));
  EXPECT_EQ(stage.files.image.at(53, 8), empty.at(53, 8));
  const Image half = stage.files.image;
  for (const char* from : {"220", "290", "300", "200"}) {
    stage.bar({"--min", "200", "--max", "300", "--value", "250", "--from", from});
    EXPECT_EQ(stage.files.image, half) << from;
  }
  stage.bar({"--min", "50", "--max", "50", "--value", "50"});
  EXPECT_EQ(stage.files.image, empty);
  stage.bar({"--value", "100", "--style", "1", "--look", "3"});
  EXPECT_NE(stage.files.image.at(3, 8), empty.at(3, 8));
  EXPECT_EQ(stage.files.image.at(3, 8), stage.files.image.at(102, 8));
}

TEST(PaintBar, ItsMessageBoxesAreLines) {
  struct Wrong {
    std::vector<std::string> words;
    const char* problem;
  };
  const Wrong wrong[] = {
      {{"--value", "101"}, "paint bar: Value can NOT be higher than Maximum !"},
      {{"--value", "-1"}, "paint bar: Value can NOT be smaller than minimum !"},
      {{"--value", "1", "--from", "101"}, "paint bar: Value can NOT be higher than Maximum !"},
      {{"--min", "9", "--max", "8", "--value", "9"},
       "paint bar: Minimum can NOT be biger than maximum !"},
      {{"--min", "-1"}, "paint bar: Minimum can NOT be smaller then 0 !"},
      {{"--max", "-1"}, "paint bar: Maximum can NOT be smaller than minimum !"},
      {{"--look", "8"}, "--look: needs a whole number from 0 to 7"},
      {{"--style", "2"}, "--style: needs a whole number from 0 to 1"},
      {{"--value", "2147483648"}, "--value: needs a whole number of 32 bits"}};
  for (const Wrong& each : wrong) {
    BarStage stage;
    EXPECT_EQ(stage.bar(each.words), 2) << each.problem;
    EXPECT_EQ(stage.err.str(), "quillvane: " + std::string(each.problem) + "\n");
    EXPECT_EQ(stage.files.written, "");
  }
}

TEST(PaintShadow, IsLargerThanItsWindow) {
  Stage stage;
  EXPECT_EQ(stage.run({"paint", "shadow", "s.png", "--size", "6x4", "--depth", "3", "--colour",
                       "0x123456", "--curve", "50", "--opacity", "80"}),
            0);
  EXPECT_EQ(stage.files.image, shadow_picture({6, 4}, {3, 0x123456, 50, 80}));
  EXPECT_EQ(stage.files.image.width, 12);
  EXPECT_EQ(stage.files.image.height, 10);
}

TEST(PaintShadow, HasADepthOfOneToAHundred) {
  for (const char* depth : {"0", "101", "-1"}) {
    Stage stage;
    EXPECT_EQ(stage.run({"paint", "shadow", "s.png", "--size", "6x4", "--depth", depth}), 2);
    EXPECT_EQ(stage.err.str(), "quillvane: --depth: needs a whole number from 1 to 100\n");
  }
  Stage stage;
  EXPECT_EQ(stage.run({"paint", "shadow", "s.png", "--size", "6x4", "--curve", "101"}), 2);
}

TEST(Gallery, IsOneSheetWithCaptions) {
  Stage stage;
  EXPECT_EQ(stage.run({"gallery", "sheet.png"}), 0);
  EXPECT_EQ(stage.files.written, "sheet.png");
  EXPECT_GT(stage.files.image.width, 1000);
  for (const std::uint32_t pixel : stage.files.image.pixels) ASSERT_EQ(pixel >> 24U, 0xFFU);
}

TEST(Gallery, NeedsAFont) {
  NoFont none;
  Stage stage;
  stage.raster = &none;
  EXPECT_EQ(stage.run({"gallery", "sheet.png"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: fonts: none is there\n");
}

}  // namespace
}  // namespace quillvane
