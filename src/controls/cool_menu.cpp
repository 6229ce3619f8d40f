#include "controls/cool_menu.h"

#include <algorithm>

#include "controls/button_picture.h"
#include "controls/caption_lines.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// Numbers of the system's colours.
enum SystemColor {
  kMenuBack = 4,
  kMenuText = 7,
  kSelectedBack = 13,
  kSelectedText = 14,
  kEdgeShadow = 16,
  kGreyText = 17,
  kEdgeLight = 20,
};

constexpr int kImageSide = 16;
constexpr int kGutter = kImageSide + 8;  // left of the captions of a menu
constexpr int kPadding = 6;              // beside a caption
constexpr int kSeparatorHeight = 8;
constexpr int kWide = 1 << 20;  // nothing is broken at it

std::string_view left_part(std::string_view caption) {
  return caption.substr(0, caption.find('\t'));
}

// The short-cut's text; empty without one.
std::string_view right_part(std::string_view caption) {
  const std::size_t tab = caption.find('\t');
  return tab == std::string_view::npos ? std::string_view() : caption.substr(tab + 1);
}

std::string leading_word(std::string_view caption) {
  std::string word;
  for (const char c : caption) {
    if (c == ' ' || c == '\t' || c == '.') break;
    if (c != '&') word.push_back(c);
  }
  return lower_case(word);
}

// One etched line.
void draw_separator(Canvas& canvas, const Rect& area) {
  const auto& colors = canvas.colors().system;
  const int middle = area.y + area.height / 2;
  canvas.fill({area.x + 1, middle - 1, area.width - 2, 1}, colors[kEdgeShadow]);
  canvas.fill({area.x + 1, middle, area.width - 2, 1}, colors[kEdgeLight]);
}

// That of a disabled entry is its shape alone, etched; that of a selected one is raised.
void draw_image(Canvas& canvas, const Rect& at, const Image& image, const MenuItemState& state) {
  const auto& colors = canvas.colors().system;
  if (state.disabled) {
    canvas.picture(at.moved(1, 1), silhouette(image, colors[kEdgeLight]));
    canvas.picture(at, silhouette(image, colors[kEdgeShadow]));
    return;
  }
  canvas.picture(at, image);
  if (!state.selected) return;
  const Rect edge = at.inset(-2);
  canvas.frame(edge, colors[kEdgeShadow]);
  canvas.fill({edge.x, edge.y, edge.width - 1, 1}, colors[kEdgeLight]);
  canvas.fill({edge.x, edge.y, 1, edge.height - 1}, colors[kEdgeLight]);
}

}  // namespace

void CoolMenu::install(std::uintptr_t window, MenuImages images, bool convert_now) {
  if (window_ != 0) {
    host_.restore_procedure(window_);
    items_.clear();
    images_ = nullptr;
    font_.reset();
  }
  window_ = window;
  if (window == 0) return;
  images_ = std::move(images);
  host_.replace_procedure(window);
  const MenuId bar = host_.menu_bar(window);
  if (convert_now && bar != 0) convert_menu(bar, true);
}

void CoolMenu::convert_menu(MenuId menu, bool is_bar) {
  const std::vector<SystemMenuItem> entries = host_.items(menu);
  for (std::size_t place = 0; place < entries.size(); ++place) {
    const SystemMenuItem& entry = entries[place];
    if (entry.sub_menu != 0) convert_menu(entry.sub_menu);
    if (items_.item(entry.data) != nullptr) continue;  // it is the program's already
    const auto key = items_.add({is_bar, button_index(entry.text), entry.type, entry.text});
    host_.own(menu, place, entry.type | kMenuOwnerDrawn, key);
  }
}

int CoolMenu::button_index(std::string_view caption) const {
  const std::string word = leading_word(caption);
  const auto found = std::ranges::find_if(
      button_names_, [&](const std::string& name) { return lower_case(name) == word; });
  if (word.empty() || found == button_names_.end()) return -1;
  return static_cast<int>(found - button_names_.begin());
}

const FontStyle& CoolMenu::font() const {
  if (!font_) font_ = system_font ? system_font() : FontStyle{};
  return *font_;
}

std::optional<Size> CoolMenu::measure(Canvas& canvas, CMyItemDatas::Key key, int bar_height,
                                      int check_height) const {
  const CMyItemData* item = items_.item(key);
  if (item == nullptr) return std::nullopt;
  if ((item->fType & kMenuSeparator) != 0) return Size{0, kSeparatorHeight};
  const Size left = canvas.measure(left_part(item->sMenuText), font(), kWide);
  if (item->bMainMenu) return Size{left.width, std::max(left.height, bar_height)};
  const std::string_view shortcut = right_part(item->sMenuText);
  const int right = shortcut.empty() ? 0 : canvas.measure(shortcut, font(), kWide).width + kGutter;
  return Size{kGutter + left.width + right + 2 * kPadding,
              std::max({left.height + 4, check_height, kImageSide + 4})};
}

void CoolMenu::draw(Canvas& canvas, CMyItemDatas::Key key, const Rect& area,
                    const MenuItemState& state) const {
  const CMyItemData* item = items_.item(key);
  if (item == nullptr) return;
  const auto& colors = canvas.colors().system;
  const bool is_lit = state.selected && !item->bMainMenu;
  canvas.fill(area, colors[is_lit ? kSelectedBack : kMenuBack]);
  if ((item->fType & kMenuSeparator) != 0) return draw_separator(canvas, area);
  const Color ink = colors[state.disabled ? kGreyText : is_lit ? kSelectedText : kMenuText];
  if (!item->bMainMenu) {
    const Image* image = item->iButton >= 0 && images_ ? images_(item->iButton) : nullptr;
    const Rect gutter{area.x, area.y, kGutter, area.height};
    if (image != nullptr) {
      draw_image(canvas, centred({kImageSide, kImageSide}, gutter), *image, state);
    } else if (state.checked) {
      canvas.fill(centred({6, 6}, gutter), ink);
    }
  }
  draw_caption(canvas, *item, area, ink);
}

void CoolMenu::draw_caption(Canvas& canvas, const CMyItemData& item, const Rect& area,
                            Color ink) const {
  const std::string_view left = left_part(item.sMenuText);
  const int width = canvas.measure(left, font(), kWide).width;
  const int indent = item.bMainMenu ? (area.width - width) / 2 : kGutter + kPadding;
  canvas.text({area.x + indent, area.y, width, area.height}, left, font(), ink);
  const std::string_view right = right_part(item.sMenuText);
  if (right.empty()) return;
  const int right_width = canvas.measure(right, font(), kWide).width;
  canvas.text({area.right() - kPadding - right_width, area.y, right_width, area.height}, right,
              font(), ink);
}

std::optional<std::size_t> CoolMenu::entry_of_key(MenuId menu, std::string_view letter,
                                                  int current) const {
  const std::vector<SystemMenuItem> entries = host_.items(menu);
  const std::string wanted = lower_case(letter);
  if (wanted.empty()) return std::nullopt;
  for (std::size_t step = 1; step <= entries.size(); ++step) {
    const std::size_t place = (static_cast<std::size_t>(current + 1) + step - 1) % entries.size();
    const CMyItemData* item = items_.item(entries[place].data);
    const std::string& caption = item == nullptr ? entries[place].text : item->sMenuText;
    if (access_key_of(left_part(caption)) == wanted) return place;
  }
  return std::nullopt;
}

}  // namespace quillvane
