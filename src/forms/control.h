// The base of all control models.
//
// A model knows nothing of a screen. Setting a property tells its observers; a view observes and
// draws. Acts of the user arrive as calls on the model, so that a script and a mouse take the same
// way in.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillvane {

class Control;
class Window;

// What changed in a control.
enum class Change {
  kText,
  kCaption,
  kEnabled,
  kVisible,
  kValue,
  kColor,
  kPosition,
  kFont,
  kItems,      // rows, nodes or entries were added, removed or rewritten
  kItemState,  // ticks or selection of items
  kRefresh,    // the program asks for a redraw
  kFocus,      // the program asks for the keyboard to go to it
};

class ControlObserver {
 public:
  virtual ~ControlObserver() = default;
  virtual void changed(Control& control, Change what) = 0;
};

// The value of a property or of a window's field, as scripts read it.
using PropertyValue = std::variant<bool, std::int64_t, double, std::string>;

// 0x00BBGGRR, as Windows writes colours.
using Color = std::uint32_t;

// The number by which a colour is stored and told: those of the system have the highest bit set and
// are negative.
[[nodiscard]] inline std::int64_t color_number(Color color) {
  return static_cast<std::int32_t>(color);
}

// A font that the program gives a control.
struct Font {
  std::string name;
  double size_points = 0;
  int character_set = 0;  // as Windows numbers them: 0 Western, 128 Japanese, 178 Arabic, ...

  friend bool operator==(const Font&, const Font&) = default;
};

// What a control is at design time, where that is more than its kind and its name.
struct Design {
  std::string_view caption = {};  // of the controls that have one
  std::string_view tool_tip = {};
  bool hidden = false;
  bool disabled = false;
};
inline constexpr Design kHidden{.hidden = true};

class Control {
 public:
  // Adds itself to the window under `name`; the window must outlive it.
  Control(Window& window, std::string_view name, const Design& design = {});
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // As the window's code calls it; elements of a control array have their index: "Label12(0)".
  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] Window& window() const { return window_; }

  [[nodiscard]] bool enabled() const { return enabled_ && !locked_; }
  void set_enabled(bool enabled);
  // A locked control is disabled, whatever set_enabled says meanwhile.
  void set_locked(bool locked);
  [[nodiscard]] bool visible() const { return visible_; }
  void set_visible(bool visible);
  void show() { set_visible(true); }
  void hide() { set_visible(false); }
  [[nodiscard]] Color fore_color() const { return fore_color_; }
  void set_fore_color(Color color);
  [[nodiscard]] Color back_color() const { return back_color_; }
  void set_back_color(Color color);

  // What a view says of it while the mouse rests on it.
  [[nodiscard]] const std::string& tool_tip() const { return tool_tip_; }
  void set_tool_tip(std::string_view text) { tool_tip_ = text; }

  // Place in the window, in twips (a fifteenth of a pixel at 96 dpi).
  [[nodiscard]] int left() const { return left_; }
  [[nodiscard]] int top() const { return top_; }
  void move(int left, int top);
  void move_to(const Control& other) { move(other.left(), other.top()); }
  // In twips; 0: the view decides.
  [[nodiscard]] int height() const { return height_; }
  void set_height(int twips);

  // Nothing: the one it has at design time.
  [[nodiscard]] const std::optional<Font>& font() const { return font_; }
  void set_font(const Font& font);

  void refresh() { notify(Change::kRefresh); }
  // Asks the view to give it the keyboard.
  void take_focus() { notify(Change::kFocus); }

  // The mouse moves over it; raised by views that know of it.
  std::function<void()> on_mouse_move;

  // A property by its name without regard to case ("text", "Enabled"); nothing when this kind of
  // control has none of that name.
  [[nodiscard]] virtual std::optional<PropertyValue> property(std::string_view name) const;

  // `observer` must outlive the control or be removed before.
  void observe(ControlObserver& observer) { observers_.push_back(&observer); }
  void unobserve(const ControlObserver& observer);

 protected:
  void notify(Change what) {
    for (ControlObserver* observer : observers_) observer->changed(*this, what);
  }

 private:
  // FontName, FontSize (points) and FontCharset; empty and 0 where the program has given none.
  [[nodiscard]] std::optional<PropertyValue> font_property(std::string_view key) const;

  Window& window_;
  std::string name_;
  std::string tool_tip_;
  std::vector<ControlObserver*> observers_;
  bool enabled_ = true;
  bool locked_ = false;
  bool visible_ = true;
  Color fore_color_ = 0;
  Color back_color_ = 0;
  int left_ = 0;
  int top_ = 0;
  int height_ = 0;
  std::optional<Font> font_;
};

}  // namespace quillvane
