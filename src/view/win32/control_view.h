// A control on the screen: one window of Windows that draws one model and passes the user's acts on
// to it.
//
// A model changes far more often than anybody can see (once a file, in a scan). So a change is only
// noted; the window host has the noted changes drawn a few times a second.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/control.h"
#include "view/win32/gdi_objects.h"
#include "view/win32/look/layout_table.h"
#include "view/win32/look/theme.h"
#include "view/win32/pictures.h"

namespace quillvane {

class Menu;

// Changes that are noted and not drawn yet.
class Changes {
 public:
  void add(Change what) { bits_ |= bit(what); }
  [[nodiscard]] bool has(Change what) const { return (bits_ & bit(what)) != 0; }
  [[nodiscard]] bool none() const { return bits_ == 0; }
  [[nodiscard]] static Changes all() {
    Changes changes;
    changes.bits_ = ~bit(Change::kFocus);  // which is asked for, never drawn
    return changes;
  }

 private:
  static unsigned bit(Change what) { return 1U << static_cast<unsigned>(what); }
  unsigned bits_ = 0;
};

// The window that the controls stand in, as they know it.
class ViewHost {
 public:
  virtual ~ViewHost() = default;
  [[nodiscard]] virtual HWND window() const = 0;
  [[nodiscard]] virtual const WindowLayout& layout() const = 0;
  [[nodiscard]] virtual const Theme& theme() const = 0;
  [[nodiscard]] virtual int dpi() const = 0;
  [[nodiscard]] virtual HFONT font() const = 0;
  [[nodiscard]] virtual HFONT bold_font() const = 0;
  [[nodiscard]] virtual Pictures& pictures() = 0;

  // Runs an act of the user from the message loop, behind those that came before. An act may be a
  // whole scan, which no control's own procedure should wait for.
  virtual void act(std::function<void()> act, WhileReading meanwhile) = 0;
  void act(std::function<void()> run) { act(std::move(run), WhileReading::kWaits); }
  // Asks the user, where the table wants that, before a control is clicked. False: No.
  [[nodiscard]] virtual bool confirms(std::string_view /*control*/) { return true; }
  // Some control has noted a change.
  virtual void needs_refresh() = 0;
  // Shows a popup menu at a place of the screen and clicks the chosen entry.
  virtual void show_menu(const Menu& menu, POINT place) = 0;
};

class ControlView : public ControlObserver {
 public:
  ControlView(ViewHost& host, Control& model, const ControlPlace& place);
  ~ControlView() override;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] Control& model() const { return model_; }
  [[nodiscard]] const ControlPlace& place() const { return place_; }

  void changed(Control& control, Change what) final;
  // Draws what was noted since the last time.
  void refresh();
  // Shows a folder that is being read, where the control is the line for that.
  virtual void show_reading(const std::wstring& /*folder*/) {}
  // Fonts, colours or the screen's resolution have changed.
  virtual void restyle();
  // Pixels that the caption needs; 0 when it needs none.
  [[nodiscard]] virtual int wanted_width() const { return 0; }
  // Pixels by which it reaches over the left edge of its place, so that its text begins there.
  [[nodiscard]] virtual int overhang() const { return 0; }
  // Whether a key that clicks the focused control does something here.
  virtual bool press() { return false; }

  // What the control tells its parent. An answer that is empty leaves the message to Windows.
  virtual std::optional<LRESULT> notified(NMHDR& /*header*/) { return std::nullopt; }
  virtual void commanded(int /*code*/) {}
  virtual void draw(const DRAWITEMSTRUCT& /*item*/) {}
  // Colours of a control that Windows draws; null: its own.
  virtual HBRUSH prepare(HDC /*dc*/) { return nullptr; }

 protected:
  // Makes the window; called by the constructors of the kinds.
  void create(const wchar_t* window_class, DWORD style, DWORD extended_style = 0);
  // The window's own text, which is shown or is what a screen reader says.
  void show_text(const std::string& text);
  // A button with a caption; its own words in the table stand in where the model has none.
  [[nodiscard]] bool says_what_it_shows() const;

  // Draws the model anew, as far as it has changed.
  virtual void show_changes(const Changes& /*changes*/) {}
  // Sees each message of the control's window first. An answer keeps it from the control.
  virtual std::optional<LRESULT> filter(UINT /*message*/, WPARAM /*w*/, LPARAM /*l*/) {
    return std::nullopt;
  }

  // The font that the program gave the control, or the window's.
  [[nodiscard]] HFONT plain_font() const;
  [[nodiscard]] HFONT bold_font() const;

  LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(window_, message, w, l);
  }
  [[nodiscard]] ViewHost& host() const { return host_; }
  [[nodiscard]] RECT client_area() const;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                    DWORD_PTR view);

  void take_fonts();

  ViewHost& host_;
  Control& model_;
  const ControlPlace& place_;
  HWND window_ = nullptr;
  FontOwner plain_font_;  // null: the window's
  FontOwner bold_font_;
  std::optional<Font> shown_font_;  // for which they were made
  Changes noted_ = Changes::all();
};

}  // namespace quillvane
