// The push button of every window: it draws itself in any of 14 looks.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/button_painter.h"
#include "controls/property_store.h"
#include "forms/buttons.h"
#include "platform/message_loop.h"

namespace quillvane {

// What a button asks of the surface it stands on.
class ButtonHost {
 public:
  virtual ~ButtonHost() = default;

  // Whether the cursor is over this control, and not over one that covers it.
  [[nodiscard]] virtual bool cursor_is_over() = 0;
  // All mouse messages come to the control until the button is up.
  virtual void capture_mouse() = 0;
  // Keys for the window: "{Tab}", or "+{Tab}" with shift.
  virtual void send_keys(std::string_view keys) = 0;
  virtual void set_region(const Region& region) = 0;
  // What paint() would draw has changed; repaint_now: and shall be seen before what follows.
  virtual void redraw() = 0;
  virtual void repaint_now() = 0;
  // What the window shows under the control.
  [[nodiscard]] virtual Image background() = 0;
};

// The buttons of a mouse, as events tell them.
inline constexpr int kNoMouseButton = 0;
inline constexpr int kLeftMouseButton = 1;
inline constexpr int kRightMouseButton = 2;

// The arguments of a mouse event; x and y in pixels of the control.
struct MouseEvent {
  int button = kNoMouseButton;
  int shift = 0;  // 1 shift, 2 control, 4 alt
  int x = 0;
  int y = 0;
};

// chameleonButton: a button that looks as its type says. Without a host it is a model alone: it can
// be clicked, and nothing is drawn.
class chameleonButton : public Button, private ControlObserver {
 public:
  chameleonButton(Window& window, std::string_view name, const Design& design = {});
  ~chameleonButton() override;

  // Both outlive the button or are taken away by detach().
  void attach(ButtonHost& host, MessageLoop& loop);
  void detach();
  // Whether the program runs; else a window is being designed, and a colour that is set is that of
  // the hovering button too.
  void set_running(bool running) { running_ = running; }

  // A new control, as a designer puts it into a window: its caption is its name.
  void init_properties();
  void read_properties(const PropertyStore& store);
  void write_properties(PropertyStore& store) const;

  // Caption, Enabled, BackColor, ForeColor and BackOver are those of every button. A number that is
  // none of its property's is passed over.
  [[nodiscard]] Color fore_over() const { return fore_over_; }
  void set_fore_over(Color color) { set("FCOLO", fore_over_, color); }
  [[nodiscard]] Color mask_color() const { return mask_color_; }
  void set_mask_color(Color color) { set("MCOL", mask_color_, color); }
  [[nodiscard]] int button_type() const { return type_; }
  void set_button_type(int type);
  [[nodiscard]] const FontStyle& font() const { return font_; }
  void set_font(const FontStyle& font) { set("FONT", font_, font); }
  [[nodiscard]] ColorScheme color_scheme() const { return scheme_; }
  void set_color_scheme(ColorScheme scheme) { set("COLTYPE", scheme_, scheme); }
  [[nodiscard]] bool show_focus_rect() const { return show_focus_rect_; }
  void set_show_focus_rect(bool show) { set("FOCUSR", show_focus_rect_, show); }
  [[nodiscard]] int mouse_pointer() const { return mouse_pointer_; }
  void set_mouse_pointer(int pointer) { set("MPTR", mouse_pointer_, pointer); }
  [[nodiscard]] const StoredPicture& mouse_icon() const { return mouse_icon_; }
  void set_mouse_icon(StoredPicture icon) { set("MICON", mouse_icon_, std::move(icon)); }
  [[nodiscard]] bool hand_pointer() const { return hand_pointer_; }
  // Takes the pointer of a hand, or gives the plain one back.
  void set_hand_pointer(bool hand);
  [[nodiscard]] bool soft_bevel() const { return soft_bevel_; }
  void set_soft_bevel(bool soft) { set("SOFT", soft_bevel_, soft); }
  [[nodiscard]] const StoredPicture& picture_normal() const { return picture_normal_; }
  void set_picture_normal(StoredPicture picture) {
    set("PICN", picture_normal_, std::move(picture));
  }
  [[nodiscard]] const StoredPicture& picture_over() const { return picture_over_; }
  // Told under another key than it is stored under.
  void set_picture_over(StoredPicture picture) { set("PICO", picture_over_, std::move(picture)); }
  [[nodiscard]] PicturePosition picture_position() const { return picture_position_; }
  void set_picture_position(PicturePosition position) {
    set("PICPOS", picture_position_, position);
  }
  [[nodiscard]] bool use_mask_color() const { return use_mask_color_; }
  void set_use_mask_color(bool use) { set("UMCOL", use_mask_color_, use); }
  [[nodiscard]] bool use_greyscale() const { return use_greyscale_; }
  void set_use_greyscale(bool use) { set("NGREY", use_greyscale_, use); }
  [[nodiscard]] int special_effect() const { return special_effect_; }
  void set_special_effect(int effect) { set("FX", special_effect_, effect); }
  [[nodiscard]] bool check_box_behaviour() const { return check_box_behaviour_; }
  void set_check_box_behaviour(bool check) { set("CHECK", check_box_behaviour_, check); }
  // Of a button with check box behaviour: whether it stays down.
  [[nodiscard]] bool value() const { return value_; }
  void set_value(bool value) { set("VALUE", value_, value); }

  [[nodiscard]] static std::string_view version() { return "2.0.6"; }
  // Stops the rebuilding of the shape until refresh(), which redraws.
  void disable_refresh() { refresh_disabled_ = true; }
  void refresh();

  // What the mouse does, in the order in which the system tells it. A press and a release over the
  // button are followed by platform_click().
  void mouse_down(const MouseEvent& event);
  void mouse_move(const MouseEvent& event);
  void mouse_up(const MouseEvent& event);
  void double_click();
  void platform_click();
  // What the keyboard does.
  void key_down(int code, int shift);
  void key_press(int ascii);
  void key_up(int code, int shift);
  void access_key();
  void enter();
  void leave();
  // A click that comes from neither: that of a script.
  void click() override { access_key(); }

  // The window's default button: Enter presses it.
  void set_default(bool is_default);
  // Something that the window gives its controls has changed: a colour, a font.
  void ambient_changed();

  // What becomes of its surface.
  void resize(Size size);
  void appear();
  void disappear() { shown_ = false; }
  // What was drawn last.
  void paint(Canvas& canvas) const;
  [[nodiscard]] ButtonPaint looks() const;

  [[nodiscard]] bool has_focus() const { return has_focus_; }
  [[nodiscard]] bool is_over() const { return over_; }
  // Whether its timer runs, which alone tells that the mouse has left.
  [[nodiscard]] bool over_timer_runs() const { return over_timer_.has_value(); }

  // Besides the common ones: Value, true or false.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(const MouseEvent&)> on_mouse_down;
  std::function<void(const MouseEvent&)> on_mouse_move;
  std::function<void(const MouseEvent&)> on_mouse_up;
  std::function<void(int ascii)> on_key_press;
  std::function<void(int code, int shift)> on_key_down;
  std::function<void(int code, int shift)> on_key_up;
  std::function<void()> on_mouse_enter;
  std::function<void()> on_mouse_leave;
  // A property has another value; `key` is that of its notice.
  std::function<void(std::string_view key)> on_property_changed;

 private:
  static constexpr int kNormalState = 0;
  static constexpr int kPressedState = 2;

  // What paint() draws.
  struct Drawn {
    int state = kNormalState;
    std::string caption;
    bool hovering = false;
  };

  template <typename T>
  void set(std::string_view key, T& property, T value) {
    property = std::move(value);
    changed_property(key);
  }
  void changed_property(std::string_view key);
  void changed(Control& control, Change what) override;
  void draw(int state, bool force);
  void redraw_now();
  void flip_value();
  void over_tick();
  void stop_over_timer();
  void rebuild_shape();
  void refresh_background();

  ButtonHost* host_ = nullptr;
  MessageLoop* loop_ = nullptr;
  bool running_ = true;
  bool reading_ = false;  // stored properties, which is no change of them

  Color back_seen_ = kButtonFace;  // to tell which colour has changed
  Color fore_seen_ = kButtonText;
  Color fore_over_ = kButtonText;
  Color mask_color_ = 0xC0C0C0;
  int type_ = 2;
  FontStyle font_;
  ColorScheme scheme_ = ColorScheme::kSystem;
  bool show_focus_rect_ = true;
  int mouse_pointer_ = 0;
  StoredPicture mouse_icon_;
  bool hand_pointer_ = false;
  bool soft_bevel_ = false;
  StoredPicture picture_normal_;
  StoredPicture picture_over_;
  PicturePosition picture_position_ = PicturePosition::kLeft;
  bool use_mask_color_ = true;
  bool use_greyscale_ = false;
  int special_effect_ = 0;
  bool check_box_behaviour_ = false;
  bool value_ = false;

  Size size_;
  bool refresh_disabled_ = false;
  bool shown_ = false;
  bool has_focus_ = false;
  bool is_default_ = false;
  bool over_ = false;
  MouseEvent last_press_;
  int last_button_ = kNoMouseButton;
  int last_key_ = 0;
  Drawn drawn_;
  Image back_buffer_;  // of type 11: what lies under the button
  std::optional<MessageLoop::TimerId> over_timer_;
};

}  // namespace quillvane
