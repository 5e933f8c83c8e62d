// Opening the colour picker and the font dialog, until all of it is painted, beside as many bare
// controls of the same kinds in a bare window; and what one step of a dragged slider costs.
#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>

#include "bench/bare_window.h"
#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"
#include "settings/setting.h"
#include "ui/windows/color_picker.h"
#include "ui/windows/font_dialog.h"
#include "win32/gdi.h"
#include "win32/tahoma.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 30;
constexpr double kAim = 1.3;
constexpr double kOpeningAim = 100;  // milliseconds
constexpr double kStepAim = 8;
constexpr int kRedSlider = 120;
constexpr int kBandHeight = 24;  // design height
constexpr UINT kDialogIsOpen = WM_APP;
constexpr wchar_t kHostClass[] = L"DialogBenchHost";

class DialogBench {
 public:
  DialogBench() {
    bench = this;
    screen_ = std::to_string(facts_.width) + "x" + std::to_string(facts_.height);
    RegisterPlainClass(kBareClass);
    WNDCLASSW host{};
    host.lpfnWndProc = HostProc;
    host.lpszClassName = kHostClass;
    RegisterClassW(&host);
    host_ = CreateWindowExW(0, kHostClass, L"", WS_POPUP | WS_VISIBLE, 0, scale_.ScaleY(26),
                            facts_.width, facts_.height - scale_.ScaleY(26), nullptr, nullptr,
                            nullptr, nullptr);
  }
  ~DialogBench() { DestroyWindow(host_); }

  void Run() {
    const DialogContext dialog{host_, door_, language_, scale_};
    Measure("the colour picker", [&] {
      Color color = Rgb(51, 102, 153);
      RunColorPicker(dialog, color, true);
    });
    Measure("the font dialog", [&] {
      LogFont font{.height = 12, .faceName = L"Tahoma"};
      Color color = kNoColor;
      RunFontDialog(dialog, font, color);
    });
    MeasureSlider(dialog);
  }

 private:
  // The dialog's own loop hands out the message that was posted before it opened.
  void RunWith(const std::function<void()>& run, std::function<void(HWND)> whenOpen) {
    whenOpen_ = std::move(whenOpen);
    PostMessageW(host_, kDialogIsOpen, 0, 0);
    run();
  }

  static LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kDialogIsOpen) return DefWindowProcW(window, message, wParam, lParam);
    const HWND dialog = GetLastActivePopup(window);
    bench->whenOpen_(dialog);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return 0;
  }

  void Measure(const std::string& name, const std::function<void()>& run) {
    Comparison opening;
    for (int round = 0; round < kRounds; ++round) {
      std::vector<BareWindow::Control> controls;
      double open = 0;
      HandleAll();
      const Stopwatch watch;
      RunWith(run, [&](HWND dialog) {
        PaintAll();
        open = watch.Milliseconds();
        controls = BareWindow::ControlsOf(dialog);
      });
      HandleAll();
      const Stopwatch bareWatch;
      {
        const BareWindow bare(host_, face_.Get());
        bare.Make(controls);
        bare.Show();
        opening.Add(open, bareWatch.Milliseconds());
      }
    }
    PrintRatio(("open " + name + ", " + screen_).c_str(), opening, kAim, "ms");
    PrintSamples("  until it is painted", opening.ours, kOpeningAim, " ms");
  }

  void MeasureSlider(const DialogContext& context) {
    Samples steps;
    Samples heights;
    Color color = Rgb(51, 102, 153);
    RunWith([&] { RunColorPicker(context, color, true); },
            [&](HWND dialog) {
              PaintAll();
              for (int position = 0; position <= 100; ++position) {
                heights.Add(Step(dialog, position, steps));
              }
            });
    PrintSamples("drag a slider by one step, " + screen_, steps, kStepAim, " ms");
    PrintSamples("  painted anew, in heights of the band", heights, 1, "");
  }

  double Step(HWND dialog, int position, Samples& steps) const {
    const HWND slider = GetDlgItem(dialog, kRedSlider);
    const Stopwatch watch;
    SendMessageW(slider, TBM_SETPOS, TRUE, position);
    SendMessageW(dialog, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, position),
                 reinterpret_cast<LPARAM>(slider));
    RECT area{};
    GetUpdateRect(dialog, &area, FALSE);
    PaintAll();
    steps.Add(watch.Milliseconds());
    return static_cast<double>(area.bottom - area.top) / scale_.ScaleY(kBandHeight);
  }

  static inline DialogBench* bench = nullptr;

  WindowsMachine machine_;
  Machine door_ = machine_.Door();
  Language language_;
  ScreenFacts facts_ = machine_.system.Screen();
  ScreenScale scale_{facts_.dpiX, facts_.dpiY, false};
  std::string screen_;
  Font face_ = TahomaFont(scale_.ScaleX(12), FW_NORMAL);
  HWND host_ = nullptr;
  std::function<void(HWND)> whenOpen_;
};

}  // namespace

}  // namespace tidewell::bench

int main() {
  tidewell::InstallDeviceShell();
  tidewell::bench::DialogBench().Run();
}
