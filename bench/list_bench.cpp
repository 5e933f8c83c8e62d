// One redraw of the main list beside a plain copy of its bitmap, and the frames of a long fling.
#include <windows.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/windows/windows_system.h"
#include "resources/art/bitmap_ids.h"
#include "ui/command_list.h"
#include "ui/look.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 300;
constexpr int kFlings = 6;
constexpr int kRows = 400;  // enough for flings that no end of the list stops

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

  Samples frames;  // milliseconds of work for each frame of a fling

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ListWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
    self->OnTimer(wParam);
    return 0;
  }

  void OnTimer(WPARAM id) {
    const Stopwatch watch;
    list_.Pointer().Timer(id);
    GdiFlush();
    if (id == kFlingTimer) frames.Add(watch.Milliseconds());
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
  const double copy = redraw.floor.Median();
  char behind[96];
  std::snprintf(behind, sizeof behind, "%.3g ms, the median frame %.3g ms",
                list.frames.Quantile(0.99), list.frames.Median());
  PrintFigure(("99th percentile frame of flings / copy, " + screen).c_str(),
              list.frames.Quantile(0.99) / copy,
              Spread(list.frames.Median() / copy, list.frames.Quantile(1) / copy), kNoAim, "",
              behind);
  return 0;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::Run();
}
