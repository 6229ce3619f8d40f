// Controls on the screen that are looked at and not worked with.
#pragma once

#include "forms/buttons.h"
#include "forms/progress_bar.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"
#include "view/win32/control_view.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

// A caption on the page; that of a heading is bold, that of a path is shortened in its middle.
class LabelView final : public ControlView {
 public:
  LabelView(ViewHost& host, Label& label, const ControlPlace& place);
  void restyle() override;
  [[nodiscard]] int wanted_width() const override;
  HBRUSH prepare(HDC dc) override;
  void show_reading(const std::wstring& folder) override;

 protected:
  void show_changes(const Changes& changes) override;

 private:
  [[nodiscard]] HFONT font() const;
  [[nodiscard]] bool names_a_folder() const { return place().kind == ControlKind::kPathLabel; }

  Label& label_;
  BrushOwner page_;
};

// The text of a text box in one line on the box's colour, shortened in its middle.
class PathLineView final : public ControlView {
 public:
  PathLineView(ViewHost& host, TextBox& box, const ControlPlace& place);

  void show_reading(const std::wstring& folder) override;

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void paint();

  TextBox& box_;
  std::wstring folder_;  // in work; shown in place of the model's text until that changes
};

// A square of the model's colour, or a picture.
class MarkView final : public ControlView {
 public:
  MarkView(ViewHost& host, Control& mark, const ControlPlace& place);

 protected:
  void show_changes(const Changes& changes) override;
  std::optional<LRESULT> filter(UINT message, WPARAM w, LPARAM l) override;

 private:
  void paint();
};

class ProgressView final : public ControlView {
 public:
  ProgressView(ViewHost& host, ProgressBar& bar, const ControlPlace& place);

 protected:
  void show_changes(const Changes& changes) override;

 private:
  ProgressBar& bar_;
};

}  // namespace quillvane
