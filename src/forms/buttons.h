// Controls that are clicked: buttons, labels, pictures, check boxes, options and menu entries.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace quillvane {

// What all clickable controls share: a caption and the Click event.
class Clickable : public Control {
 public:
  Clickable(Window& window, std::string_view name, const Design& design = {})
      : Control(window, name, design), caption_(design.caption) {}

  [[nodiscard]] const std::string& caption() const { return caption_; }
  void set_caption(std::string_view caption);

  // The user's click. Does nothing while the control is disabled.
  virtual void click();
  // Runs what stands behind the click for the program itself, be the control enabled or not.
  void raise_click() const {
    if (on_click) on_click();
  }

  // Besides the common ones: Caption, and Text with the same content.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void()> on_click;

 private:
  std::string caption_;
};

// A push button, drawn by the program.
class Button : public Clickable {
 public:
  using Clickable::Clickable;

  // Background while the mouse is over it.
  [[nodiscard]] Color back_over() const { return back_over_; }
  void set_back_over(Color color);

 private:
  Color back_over_ = 0;
};

class Label : public Clickable {
 public:
  using Clickable::Clickable;

  // What the program keeps with it; not shown.
  [[nodiscard]] const std::string& tag() const { return tag_; }
  void set_tag(std::string_view tag) { tag_ = tag; }
  // Besides the others: Tag.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  std::string tag_;
};

// A picture; what it shows is the view's.
class Picture : public Clickable {
 public:
  using Clickable::Clickable;
};

// A box with a tick. A click turns the tick over and then runs on_click.
class CheckBox : public Clickable {
 public:
  using Clickable::Clickable;

  [[nodiscard]] bool checked() const { return checked_; }
  // Sets the tick; runs on_click when it changed, as the standard control does.
  void set_checked(bool checked);
  void click() override;
  // Besides the others: Value, 1 or 0.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  bool checked_ = false;
};

// One of a group of choices.
class OptionButton : public Clickable {
 public:
  using Clickable::Clickable;

  [[nodiscard]] bool chosen() const { return chosen_; }
  // Chooses it, takes the choice from the others of its group, and runs on_click.
  void choose();
  // Takes the choice from it; then none of its group is chosen. Runs nothing.
  void clear();
  void click() override;
  // The options among which one is chosen; the same list for all of them.
  void set_group(std::vector<OptionButton*> group) { group_ = std::move(group); }
  // Besides the others: Value, true or false.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  bool chosen_ = false;
  std::vector<OptionButton*> group_;
};

class MenuEntry : public Clickable {
 public:
  MenuEntry(Window& window, std::string_view name, std::string_view caption)
      : Clickable(window, name, {.caption = caption}) {}
};

// A popup menu. Entries stand in their order; separators are drawn before the entries named so.
class Menu : public Control {
 public:
  Menu(Window& window, std::string_view name, std::string_view caption,
       std::vector<MenuEntry*> entries)
      : Control(window, name), caption_(caption), entries_(std::move(entries)) {}

  // As in a menu bar; no window shows one.
  [[nodiscard]] const std::string& caption() const { return caption_; }
  [[nodiscard]] const std::vector<MenuEntry*>& entries() const { return entries_; }

  // Besides the common ones: Caption.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  std::string caption_;
  std::vector<MenuEntry*> entries_;
};

}  // namespace quillvane
