// Owner types for drawing objects, and the few drawing steps that shell and stand-in share. Windows
// only; the core never includes this.
#pragma once

#include <windows.h>

#include <utility>

namespace tidewell {

// Owns a font, brush, pen or bitmap; empty when its creation failed.
template <typename Handle>
class GdiObject {
 public:
  GdiObject() = default;
  explicit GdiObject(Handle handle) : handle_(handle) {}
  GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    if (this != &other) {
      Reset();
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }
  ~GdiObject() { Reset(); }

  Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  void Reset() {
    if (handle_) DeleteObject(handle_);
    handle_ = nullptr;
  }

 private:
  Handle handle_ = nullptr;
};

using Font = GdiObject<HFONT>;
using Brush = GdiObject<HBRUSH>;
using Pen = GdiObject<HPEN>;
using Bitmap = GdiObject<HBITMAP>;

// Selects an object into a device context for the length of a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), previous_(SelectObject(dc, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(dc_, previous_); }

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

// A bitmap to draw on, with its device context; copied to the screen in one block.
class MemoryBitmap {
 public:
  MemoryBitmap() = default;
  MemoryBitmap(HDC like, int width, int height)
      : dc_(CreateCompatibleDC(like)),
        bitmap_(CreateCompatibleBitmap(like, width, height)),
        previous_(SelectObject(dc_, bitmap_.Get())) {}
  MemoryBitmap(MemoryBitmap&& other) noexcept
      : dc_(std::exchange(other.dc_, nullptr)),
        bitmap_(std::move(other.bitmap_)),
        previous_(other.previous_) {}
  MemoryBitmap& operator=(MemoryBitmap&& other) noexcept {
    if (this != &other) {
      Release();
      dc_ = std::exchange(other.dc_, nullptr);
      bitmap_ = std::move(other.bitmap_);
      previous_ = other.previous_;
    }
    return *this;
  }
  ~MemoryBitmap() { Release(); }

  HDC Dc() const { return dc_; }
  // What was drawn, for an owner that wants it in no device context.
  Bitmap Take() {
    Release();
    return std::move(bitmap_);
  }

 private:
  void Release() {
    if (!dc_) return;
    SelectObject(dc_, previous_);
    DeleteDC(dc_);
    dc_ = nullptr;
  }

  HDC dc_ = nullptr;
  Bitmap bitmap_;
  HGDIOBJ previous_ = nullptr;
};

// Reads, for the length of a scope, from a bitmap that somebody else owns; one at a time. All do so
// in one device context: making one takes longer than drawing a picture.
class BitmapReader {
 public:
  explicit BitmapReader(HBITMAP bitmap) : selected_(Dc(), bitmap) {}

  static HDC Dc() {
    static const MemoryDc dc;
    return dc.Get();
  }

 private:
  class MemoryDc {
   public:
    MemoryDc() : dc_(CreateCompatibleDC(nullptr)) {}
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;
    ~MemoryDc() { DeleteDC(dc_); }

    HDC Get() const { return dc_; }

   private:
    HDC dc_;
  };

  Selected selected_;
};

// The device context of a WM_PAINT.
class PaintDc {
 public:
  explicit PaintDc(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  PaintDc(const PaintDc&) = delete;
  PaintDc& operator=(const PaintDc&) = delete;
  ~PaintDc() { EndPaint(window_, &paint_); }

  HDC Dc() const { return dc_; }
  // What is to be painted anew lies within it.
  const RECT& Area() const { return paint_.rcPaint; }

 private:
  HWND window_;
  PAINTSTRUCT paint_;
  HDC dc_;
};

// A bitmap in place of an area of a device context; it gets there in one block when the scope ends.
class BufferedArea {
 public:
  BufferedArea(HDC target, const RECT& place)
      : target_(target),
        place_(place),
        area_{0, 0, place.right - place.left, place.bottom - place.top},
        buffer_(target, area_.right, area_.bottom) {}
  BufferedArea(const BufferedArea&) = delete;
  BufferedArea& operator=(const BufferedArea&) = delete;
  ~BufferedArea() {
    BitBlt(target_, place_.left, place_.top, area_.right, area_.bottom, buffer_.Dc(), 0, 0,
           SRCCOPY);
  }

  HDC Dc() const { return buffer_.Dc(); }
  // The whole of it, in its own coordinates.
  const RECT& Area() const { return area_; }

 private:
  HDC target_;
  RECT place_;
  RECT area_;
  MemoryBitmap buffer_;
};

inline RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return area;
}

// A WM_PAINT that draws the whole client area into a bitmap first.
class BufferedPaint {
 public:
  explicit BufferedPaint(HWND window)
      : screen_(window), buffer_(screen_.Dc(), ClientArea(window)) {}

  HDC Dc() const { return buffer_.Dc(); }
  const RECT& Client() const { return buffer_.Area(); }

 private:
  PaintDc screen_;
  BufferedArea buffer_;
};

// The same for what is to be painted anew alone, in the client area's own coordinates.
class PartialPaint {
 public:
  explicit PartialPaint(HWND window)
      : screen_(window),
        buffer_(screen_.Dc(), screen_.Area().right - screen_.Area().left,
                screen_.Area().bottom - screen_.Area().top) {
    SetViewportOrgEx(buffer_.Dc(), -screen_.Area().left, -screen_.Area().top, nullptr);
  }
  PartialPaint(const PartialPaint&) = delete;
  PartialPaint& operator=(const PartialPaint&) = delete;
  ~PartialPaint() {
    const RECT& area = screen_.Area();
    BitBlt(screen_.Dc(), area.left, area.top, area.right - area.left, area.bottom - area.top,
           buffer_.Dc(), area.left, area.top, SRCCOPY);
  }

  HDC Dc() const { return buffer_.Dc(); }

 private:
  PaintDc screen_;
  MemoryBitmap buffer_;
};

// A window's device context outside WM_PAINT; null stands for the screen.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  ~WindowDc() { ReleaseDC(window_, dc_); }

  HDC Dc() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

inline TRIVERTEX GradientVertex(LONG x, LONG y, COLORREF colour) {
  const auto channel = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
  return {x, y, channel(GetRValue(colour)), channel(GetGValue(colour)), channel(GetBValue(colour)),
          0};
}

inline void FillVertically(HDC dc, const RECT& area, COLORREF top, COLORREF bottom) {
  TRIVERTEX corners[] = {GradientVertex(area.left, area.top, top),
                         GradientVertex(area.right, area.bottom, bottom)};
  GRADIENT_RECT whole{0, 1};
  GradientFill(dc, corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);
}

inline void FillPlain(HDC dc, const RECT& area, COLORREF colour) {
  FillRect(dc, &area, Brush(CreateSolidBrush(colour)).Get());
}

// Draws a picture whose colours are multiplied with their transparency already.
inline void DrawWithAlpha(HDC dc, int x, int y, HBITMAP picture, int width, int height) {
  const BitmapReader source(picture);
  AlphaBlend(dc, x, y, width, height, source.Dc(), 0, 0, width, height,
             {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA});
}

}  // namespace tidewell
