#include "view/win32/tick_boxes.h"

#include "platform/win32/gdiplus_api.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr int kBoxSize = 13;
constexpr int kBeside = 2;  // left and right of it

Gdiplus::Color solid(COLORREF color) {
  Gdiplus::Color result;
  result.SetFromCOLORREF(color);
  return result;
}

void draw_box(Gdiplus::Graphics& graphics, const Theme& theme, Gdiplus::Rect box, bool ticked,
              int line) {
  const bool filled = ticked && !theme.high_contrast;
  const Gdiplus::SolidBrush ground(solid(filled ? theme.main_button : theme.list));
  const Gdiplus::SolidBrush edge(solid(filled ? theme.main_button : theme.box_edge));
  graphics.FillRectangle(&edge, box);
  box.Inflate(-line, -line);
  graphics.FillRectangle(&ground, box);
  if (!ticked) return;
  const auto at = [&box](float x, float y) {
    return Gdiplus::PointF(static_cast<float>(box.X) + x * static_cast<float>(box.Width),
                           static_cast<float>(box.Y) + y * static_cast<float>(box.Height));
  };
  const Gdiplus::PointF tick[] = {at(0.12F, 0.5F), at(0.4F, 0.78F), at(0.88F, 0.2F)};
  Gdiplus::Pen pen(solid(filled ? theme.main_button_text : theme.list_text),
                   1.6F * static_cast<float>(line));
  graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
  graphics.DrawLines(&pen, tick, 3);
}

}  // namespace

ImageListOwner tick_boxes(const ViewHost& host, int height, int first) {
  const int size = scaled(kBoxSize, host.dpi());
  const int beside = scaled(kBeside, host.dpi());
  const int width = size + 2 * beside;
  const int count = first + 2;
  ImageListOwner list(ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, count, 1));
  for (int i = 0; i < count; ++i) {
    Gdiplus::Bitmap space(width, height, PixelFormat32bppARGB);
    {
      Gdiplus::Graphics graphics(&space);
      draw_box(graphics, host.theme(), {beside, (height - size) / 2, size, size}, i > first,
               scaled(1, host.dpi()));
    }
    HICON icon = nullptr;
    if (space.GetHICON(&icon) != Gdiplus::Ok) break;
    ImageList_ReplaceIcon(list.get(), -1, IconOwner(icon).get());
  }
  return list;
}

}  // namespace quillvane
