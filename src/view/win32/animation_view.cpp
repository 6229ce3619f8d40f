#include "view/win32/animation_view.h"

#include <commctrl.h>

#include <algorithm>
#include <cstddef>

#include "platform/win32/gdiplus_api.h"
#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kUnitMs = 10;           // of a delay in the file
constexpr UINT kLeastDelayMs = 40;     // what a file that tells none, or a hasty one, is shown with
constexpr DWORD kMostBytes = 8 << 20;  // a larger file is no animation of this program

std::vector<char> read_all(const std::string& path) {
  const HANDLE opened = CreateFileW(widen(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return {};
  const FileHandle file(opened);
  LARGE_INTEGER size{};
  if (!GetFileSizeEx(file.get(), &size) || size.QuadPart <= 0 || size.QuadPart > kMostBytes) {
    return {};
  }
  std::vector<char> bytes(static_cast<std::size_t>(size.QuadPart));
  DWORD read = 0;
  if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) {
    return {};
  }
  bytes.resize(read);
  return bytes;
}

std::vector<UINT> frame_delays(Gdiplus::Bitmap& picture, UINT frames) {
  std::vector<UINT> delays(frames, kLeastDelayMs);
  const UINT bytes = picture.GetPropertyItemSize(PropertyTagFrameDelay);
  if (bytes < sizeof(Gdiplus::PropertyItem)) return delays;
  const std::vector<std::byte> store(bytes);
  auto* item = reinterpret_cast<Gdiplus::PropertyItem*>(const_cast<std::byte*>(store.data()));
  if (picture.GetPropertyItem(PropertyTagFrameDelay, bytes, item) != Gdiplus::Ok) return delays;
  const auto* units = static_cast<const UINT32*>(item->value);
  const std::size_t told = item->length / sizeof(UINT32);
  for (std::size_t i = 0; i < std::min<std::size_t>(frames, told); ++i) {
    delays[i] = std::max<UINT>(units[i] * kUnitMs, kLeastDelayMs);
  }
  return delays;
}

}  // namespace

AnimationView::AnimationView(ViewHost& host, Animation& animation, const ControlPlace& place)
    : ControlView(host, animation, place), animation_(animation) {
  create(WC_STATICW, SS_LEFT);
}

AnimationView::~AnimationView() { play(false); }

void AnimationView::load() {
  picture_ = nullptr;
  frame_ = 0;
  delays_ms_.clear();
  bytes_ = read_all(animation_.file());
  if (bytes_.empty()) return;
  stream_ = stream_of(bytes_.data(), bytes_.size());
  if (stream_ == nullptr) return;
  auto picture = std::make_unique<Gdiplus::Bitmap>(stream_.get());
  if (picture->GetLastStatus() != Gdiplus::Ok || picture->GetWidth() == 0) return;
  const UINT frames = picture->GetFrameCount(&Gdiplus::FrameDimensionTime);
  if (frames == 0) return;
  delays_ms_ = frame_delays(*picture, frames);
  picture_ = std::move(picture);
}

void AnimationView::show_changes(const Changes& changes) {
  if (changes.has(Change::kText)) load();
  play(animation_.visible());
  InvalidateRect(window(), nullptr, FALSE);
}

void AnimationView::play(bool playing) {
  const bool can_play = playing && delays_ms_.size() > 1;
  if (can_play == is_playing_) return;
  is_playing_ = can_play;
  if (can_play) {
    SetTimer(window(), kTimer, delays_ms_[frame_], nullptr);
  } else {
    KillTimer(window(), kTimer);
  }
}

void AnimationView::next_frame() {
  if (!is_playing_) return;
  frame_ = (frame_ + 1) % delays_ms_.size();
  if (picture_->SelectActiveFrame(&Gdiplus::FrameDimensionTime, static_cast<UINT>(frame_)) !=
      Gdiplus::Ok) {
    // The file is torn behind the frames that were shown: they are all there is.
    delays_ms_.resize(frame_);
    frame_ = 0;
    if (delays_ms_.size() < 2) return play(false);
  }
  SetTimer(window(), kTimer, delays_ms_[frame_], nullptr);
  InvalidateRect(window(), nullptr, FALSE);
}

std::optional<LRESULT> AnimationView::filter(UINT message, WPARAM w, LPARAM /*l*/) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    case WM_TIMER:
      if (w == kTimer) next_frame();
      return 0;
    default:
      return std::nullopt;
  }
}

void AnimationView::paint() {
  const PaintScope scope(window());
  const RECT area = client_area();
  const int size = std::min(area.right, area.bottom);
  if (size <= 0) return;
  // In memory first, since a frame that is drawn on an emptied ground flickers.
  Gdiplus::Bitmap ground(area.right, area.bottom, PixelFormat32bppRGB);
  Gdiplus::Graphics graphics(&ground);
  Gdiplus::Color page;
  page.SetFromCOLORREF(host().theme().page);
  graphics.Clear(page);
  if (picture_ != nullptr) {
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
    graphics.DrawImage(picture_.get(), Gdiplus::Rect((area.right - size) / 2,
                                                     (area.bottom - size) / 2, size, size));
  }
  Gdiplus::Graphics(scope.dc()).DrawImage(&ground, 0, 0);
}

}  // namespace quillvane
