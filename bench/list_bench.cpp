// One redraw of the main list beside a plain copy of its bitmap, and the frames of long flings
// beside the least that a frame can be.
#include <windows.h>

#include <cstdio>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/windows/windows_system.h"
#include "resources/art/bitmap_ids.h"
#include "ui/windows/command_list.h"
#include "ui/windows/look.h"
#include "win32/tahoma.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 300;
constexpr int kFlings = 6;
constexpr int kRows = 400;  // enough for flings that no end of the list stops

// The least that a frame of a fling can be: a bitmap shifted by a row, one row painted with all
// that it takes at hand, one copy to the window.
class BareFrame {
 public:
  BareFrame(HWND window, SIZE size, int rowHeight, HFONT font, const CommandEntry& row)
      : window_(window),
        size_(size),
        place_{0, size.cy - rowHeight, size.cx, size.cy},
        row_(row),
        surface_(WindowDc(window).Dc(), size.cx, size.cy),
        paper_(CreateSolidBrush(kPaper)),
        line_(CreateSolidBrush(kHairline)) {
    SelectObject(surface_.Dc(), font);
    SetBkMode(surface_.Dc(), TRANSPARENT);
    SetTextColor(surface_.Dc(), kInk);
  }

  void Show() const {
    const HDC dc = surface_.Dc();
    BitBlt(dc, 0, 0, size_.cx, place_.top, dc, 0, size_.cy - place_.top, SRCCOPY);
    FillRect(dc, &place_, paper_.Get());
    const RECT edge{0, place_.bottom - 1, place_.right, place_.bottom};
    FillRect(dc, &edge, line_.Get());
    const int width = row_.picture.Width();
    const int height = row_.picture.Height();
    DrawWithAlpha(dc, 0, place_.top, row_.picture.Handle(), width, height);
    RECT text{width, place_.top, place_.right, place_.bottom};
    DrawTextW(dc, row_.caption.c_str(), -1, &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    BitBlt(WindowDc(window_).Dc(), 0, 0, size_.cx, size_.cy, dc, 0, 0, SRCCOPY);
  }

 private:
  HWND window_;
  SIZE size_;
  RECT place_;
  const CommandEntry& row_;
  MemoryBitmap surface_;
  Brush paper_;
  Brush line_;
};

// The main list in a window of its own, filled with many rows of the program's own pictures.
class ListWindow {
 public:
  ListWindow() {
    const ScreenFacts screen = WindowsSystem().Screen();
    scale_ = ScreenScale(screen.dpiX, screen.dpiY, false);
    WNDCLASSW listClass{};
    listClass.lpfnWndProc = WindowProc;
    listClass.lpszClassName = L"ListBench";
    RegisterClassW(&listClass);
    window_ = CreateWindowExW(0, L"ListBench", L"", WS_POPUP | WS_VISIBLE, 0, 0, screen.width,
                              screen.height, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    regular_ = TahomaFont(scale_.ScaleX(12), FW_DONTCARE);
    bold_ = TahomaFont(scale_.ScaleX(12), FW_BOLD);
    list_.Create(window_, scale_, regular_.Get(), bold_.Get(), [](int) {});
    width_ = screen.width;
    height_ = screen.height - scale_.ScaleY(26) - scale_.ScaleY(40, true);
    list_.Show(Rows(), width_, height_);
    bare_.emplace(window_, SIZE{width_, height_}, list_.RowHeight(), regular_.Get(),
                  list_.Entries().front());
    Pump();
  }
  ~ListWindow() { DestroyWindow(window_); }

  double TimeRedraw() {
    const Stopwatch watch;
    list_.Pointer().Redraw();
    GdiFlush();
    return watch.Milliseconds();
  }
  double TimeCopy() const {
    const HDC screen = GetDC(window_);
    const Stopwatch watch;
    list_.Paint(screen);
    GdiFlush();
    const double milliseconds = watch.Milliseconds();
    ReleaseDC(window_, screen);
    return milliseconds;
  }

  // A quick flick of the finger; returns when the list has come to rest.
  void Fling(bool upwards) {
    const int x = width_ / 2;
    const int from = upwards ? height_ - 10 : 10;
    const int step = height_ / 6 * (upwards ? -1 : 1);
    list_.Pointer().PointerDown({x, from});
    for (int i = 1; i <= 4; ++i) {
      Sleep(10);
      list_.Pointer().PointerMove({x, from + i * step});
    }
    list_.Pointer().PointerUp({x, from + 4 * step});
    MSG message;
    while (list_.Pointer().Scroller().Moving() && GetMessageW(&message, nullptr, 0, 0) > 0) {
      DispatchMessageW(&message);
    }
  }

  // Milliseconds for each second frame of a fling, and in between for as many bare ones: in turns,
  // because what was idle until a timer fired takes longer than what is repeated at once.
  Samples frames;
  Samples bareFrames;

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ListWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
    self->OnTimer(wParam);
    return 0;
  }

  void OnTimer(WPARAM id) {
    isTurnOfBare_ = !isTurnOfBare_;
    if (isTurnOfBare_) {
      const Stopwatch watch;
      bare_->Show();
      GdiFlush();
      bareFrames.Add(watch.Milliseconds());
    }
    const Stopwatch watch;
    list_.Pointer().Timer(id);
    GdiFlush();
    if (!isTurnOfBare_ && id == kFlingTimer) frames.Add(watch.Milliseconds());
  }

  std::vector<CommandEntry> Rows() const {
    const wchar_t* library = scale_.ScaleX(1) < 2
                                 ? L"\\Program Files\\Velmont\\Tidewell\\LowDpiRes.dll"
                                 : L"\\Program Files\\Velmont\\Tidewell\\HighDpiRes.dll";
    const HMODULE pictures = LoadLibraryW(library);
    std::vector<CommandEntry> rows;
    for (int row = 0; row < kRows; ++row) {
      const WORD id = static_cast<WORD>(IDB_CALENDAR + row % 13);
      rows.push_back({L"Special events", Picture(pictures, id), row});
    }
    FreeLibrary(pictures);
    return rows;
  }

  static void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }

  ScreenScale scale_;
  HWND window_ = nullptr;
  Font regular_;
  Font bold_;
  CommandList list_;
  std::optional<BareFrame> bare_;
  bool isTurnOfBare_ = false;
  int width_ = 0;
  int height_ = 0;
};

int Run() {
  ListWindow list;
  Comparison redraw;
  for (int round = 0; round < kRounds; ++round) {
    const double copy = list.TimeCopy();
    redraw.Add(list.TimeRedraw(), copy);
  }
  const std::string screen = std::to_string(GetSystemMetrics(SM_CXSCREEN)) + "x" +
                             std::to_string(GetSystemMetrics(SM_CYSCREEN));
  PrintRatio(("redraw of the list / copy, " + screen).c_str(), redraw, kNoAim, "ms");

  for (int fling = 0; fling < kFlings; ++fling) list.Fling(fling % 2 == 0);
  const double bare = list.bareFrames.Median();
  char behind[96];
  std::snprintf(behind, sizeof behind, "%.3g against %.3g ms, the 99th percentile %.3g ms",
                list.frames.Median(), bare, list.frames.Quantile(0.99));
  PrintFigure(("median frame of flings / bare frame, " + screen).c_str(),
              list.frames.Median() / bare,
              Spread(list.frames.Quantile(0.25) / bare, list.frames.Quantile(0.75) / bare), 1.3, "",
              behind);
  return 0;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::Run();
}
