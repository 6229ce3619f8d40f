// A window: the controls that stand in it and the fields that hold its state, both also found by
// name for scripts and views.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace quillvane {

enum class WindowState { kNormal = 0, kMinimised = 1, kMaximised = 2 };

class Window {
 public:
  explicit Window(std::string_view name) : name_(name) {}
  virtual ~Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption) { caption_ = caption; }

  [[nodiscard]] bool visible() const { return visible_; }
  void set_visible(bool visible);
  void show() { set_visible(true); }
  void hide() { set_visible(false); }
  [[nodiscard]] WindowState state() const { return state_; }
  // Sets the state and runs the window's Resize, as the system does.
  void set_state(WindowState state);
  // Whether it stays above the windows of other programs.
  [[nodiscard]] bool topmost() const { return topmost_; }
  void set_topmost(bool topmost);
  [[nodiscard]] Color back_color() const { return back_color_; }
  void set_back_color(Color color) { back_color_ = color; }

  // Acts of the user on the window's own buttons.
  void minimise() { set_state(WindowState::kMinimised); }
  void restore() { set_state(WindowState::kNormal); }
  virtual void close() {}

  // A control by its name without regard to case; null when there is none.
  [[nodiscard]] Control* find(std::string_view name) const;
  // In the order in which they stand in the window.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }

  // The value of a field by its name without regard to case.
  [[nodiscard]] std::optional<PropertyValue> field(std::string_view name) const;
  // Makes a field readable by name.
  void add_field(std::string_view name, std::function<PropertyValue()> read);

  // Lets a control be found by a second name: an array of controls without an index means one of
  // them.
  void add_second_name(std::string_view name, Control& control);

  // Called when visible, state or topmost change.
  std::function<void()> on_view_change;

 protected:
  // Runs after each change of size or state.
  virtual void resized() {}

 private:
  friend class Control;
  void add_control(Control& control);

  std::string name_;
  std::string caption_;
  bool visible_ = false;
  bool topmost_ = false;
  WindowState state_ = WindowState::kNormal;
  Color back_color_ = 0;
  std::vector<Control*> controls_;
  std::map<std::string, Control*> by_name_;  // keys in lower case
  std::map<std::string, std::function<PropertyValue()>> fields_;
};

}  // namespace quillvane
