// Menus that the program draws itself, with pictures from an image list.
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "controls/canvas.h"
#include "controls/menu_items.h"

namespace quillvane {

// A menu of the system; 0 is none.
using MenuId = std::uintptr_t;

// An entry as the system has it.
struct SystemMenuItem {
  std::uint32_t type = 0;
  std::string text;
  MenuId sub_menu = 0;
  CMyItemDatas::Key data = 0;  // what it was given by own(); 0 as long as the system draws it
};

inline constexpr std::uint32_t kMenuOwnerDrawn = 0x100;  // type bits of Windows
inline constexpr std::uint32_t kMenuSeparator = 0x800;

// What CoolMenu asks of the system.
class MenuHost {
 public:
  virtual ~MenuHost() = default;

  // Puts CoolMenu's procedure in place of the window's own, and back.
  virtual void replace_procedure(std::uintptr_t window) = 0;
  virtual void restore_procedure(std::uintptr_t window) = 0;
  [[nodiscard]] virtual MenuId menu_bar(std::uintptr_t window) = 0;
  [[nodiscard]] virtual std::vector<SystemMenuItem> items(MenuId menu) = 0;
  // From now on the program draws the entry at that place, which is told to it by the key.
  virtual void own(MenuId menu, std::size_t place, std::uint32_t type, CMyItemDatas::Key key) = 0;
};

// How an entry is shown.
struct MenuItemState {
  bool selected = false;
  bool disabled = false;
  bool checked = false;
};

// The picture of that number; null without one.
using MenuImages = std::function<const Image*(int number)>;

class CoolMenu {
 public:
  explicit CoolMenu(MenuHost& host) : host_(host) {}
  ~CoolMenu() { install(0, nullptr, false); }
  CoolMenu(const CoolMenu&) = delete;
  CoolMenu& operator=(const CoolMenu&) = delete;

  // With a window: its menus are drawn by the program from now on, those of its bar at once when
  // `convert_now`, the others when they open. Without one, the window gets its own procedure back,
  // and all is dropped; without one installed before, nothing happens.
  void install(std::uintptr_t window, MenuImages images, bool convert_now);
  [[nodiscard]] bool installed() const { return window_ != 0; }
  // Makes the entries of a menu and of those below it the program's own.
  void convert_menu(MenuId menu, bool is_bar = false);
  // A menu is about to open.
  void menu_opens(MenuId menu) {
    if (installed()) convert_menu(menu);
  }

  // Captions that have a picture, by their leading word without "&" and dots.
  void set_button_names(std::vector<std::string> names) { button_names_ = std::move(names); }
  // The picture of a caption: the number of its leading word among the names, -1 without one.
  [[nodiscard]] int button_index(std::string_view caption) const;

  [[nodiscard]] const CMyItemDatas& item_datas() const { return items_; }
  // The size of an entry; nothing of one that is not the program's. `bar_height` and `check_height`
  // are the least heights of an entry of the bar and of a menu.
  [[nodiscard]] std::optional<Size> measure(Canvas& canvas, CMyItemDatas::Key key, int bar_height,
                                            int check_height) const;
  void draw(Canvas& canvas, CMyItemDatas::Key key, const Rect& area,
            const MenuItemState& state) const;
  // The entry that a letter chooses: the next behind `current` (-1: none) whose access key it is.
  [[nodiscard]] std::optional<std::size_t> entry_of_key(MenuId menu, std::string_view letter,
                                                        int current) const;
  // The system's colours or settings have changed: the font is taken anew.
  void settings_changed() { font_.reset(); }
  // The font of the menus; the system's is asked for when it is first needed.
  std::function<FontStyle()> system_font;

 private:
  [[nodiscard]] const FontStyle& font() const;
  void draw_caption(Canvas& canvas, const CMyItemData& item, const Rect& area, Color ink) const;

  MenuHost& host_;
  std::uintptr_t window_ = 0;
  MenuImages images_;
  CMyItemDatas items_;
  std::vector<std::string> button_names_;
  mutable std::optional<FontStyle> font_;
};

}  // namespace quillvane
