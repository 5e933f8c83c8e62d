// Drawing the preview anew with everything on, beside copying its strip and drawing the same texts
// and icons bare: without settings to read, texts to form or places to work out.
#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "platform/memory/memory_machine.h"
#include "platform/windows/windows_machine.h"
#include "preview/today_preview.h"
#include "preview/windows/gdi_canvas.h"
#include "preview/windows/resource_icons.h"
#include "resources/text/text_ids.h"
#include "win32/gdi.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 2000;
constexpr double kAim = 1.3;
constexpr double kMillisecondsAim = 4;

// What was drawn, to be drawn again by the system alone.
struct Recording {
  std::vector<std::function<void()>> steps;
  std::map<const CanvasFont*, Font> fonts;
};

class RecordingCanvas : public GdiCanvas {
 public:
  RecordingCanvas(HDC dc, Recording& recording) : GdiCanvas(dc), dc_(dc), recording_(recording) {}

  std::unique_ptr<CanvasFont> MakeFont(const LogFont& description) override {
    auto font = GdiCanvas::MakeFont(description);
    const LOGFONTW system = SystemDescription(description);
    recording_.fonts[font.get()] = Font(CreateFontIndirectW(&system));
    return font;
  }
  void Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
             TextAlign align) override {
    GdiCanvas::Write(area, text, font, color, align);
    const UINT format =
        DT_SINGLELINE | DT_NOPREFIX | (align == TextAlign::kRight ? DT_RIGHT : DT_LEFT);
    recording_.steps.push_back(
        [=, dc = dc_, words = std::wstring(text), face = recording_.fonts.at(&font).Get()] {
          const Selected selected(dc, face);
          SetTextColor(dc, color);
          RECT place = SystemRect(area);
          DrawTextW(dc, words.data(), static_cast<int>(words.size()), &place, format);
        });
  }
  void Draw(const Image& image, int x, int y) override {
    GdiCanvas::Draw(image, x, y);
    const HBITMAP picture = static_cast<const GdiImage&>(image).Handle();
    recording_.steps.push_back([=, dc = dc_, width = image.Width(), height = image.Height()] {
      DrawWithAlpha(dc, x, y, picture, width, height);
    });
  }
  std::unique_ptr<Canvas> MakeOffscreen(int width, int height) override;
  void Copy(const Canvas& source, const Rect& area) override {
    GdiCanvas::Copy(source, area);
    const HDC from = static_cast<const RecordingCanvas&>(source).dc_;
    recording_.steps.push_back([=, dc = dc_] {
      BitBlt(dc, area.left, area.top, area.width, area.height, from, 0, 0, SRCCOPY);
    });
  }

 private:
  HDC dc_;
  Recording& recording_;
};

class RecordingOffscreen final : private MemoryBitmap, public RecordingCanvas {
 public:
  RecordingOffscreen(HDC like, int width, int height, Recording& recording)
      : MemoryBitmap(like, width, height), RecordingCanvas(MemoryBitmap::Dc(), recording) {}
};

std::unique_ptr<Canvas> RecordingCanvas::MakeOffscreen(int width, int height) {
  return std::make_unique<RecordingOffscreen>(dc_, width, height, recording_);
}

void TurnEverythingOn(SettingsStore& settings) {
  settings.calendar.ApptDisplayFormat.Set(11);
  settings.calendar.FoldingType.Set(0);
  settings.calendar.ApptLeftAlignIcon1.Set(kCategoryIcon);
  settings.calendar.ApptLeftAlignIcon2.Set(kReminderIcon);
  settings.root.IndentItems.Set(1);
  settings.fonts.UseShadowColor.Set(kShadowOutline);
  settings.fonts.FontGnrlUseAdvncd.Set(1);
}

class PreviewBench {
 public:
  PreviewBench() {
    const ScreenFacts screen = machine_.system.Screen();
    width_ = screen.width;
    name_ = std::to_string(screen.width) + "x" + std::to_string(screen.height);
    scale_ = ScreenScale(screen.dpiX, screen.dpiY, false);
    Machine installed = machine_.Door();
    SettingsStore present;
    present.Load(installed, scale_, language_);
    const bool isLow = scale_.ScaleX(1) < 2;
    pictures_ = machine_.libraries.Load(present.installFolder +
                                        (isLow ? L"\\LowDpiRes.dll" : L"\\HighDpiRes.dll"));
    Language none;
    MemoryMachine first;
    Machine door{first.registry, first.files, machine_.locale, first.libraries, first.system};
    settings_.Load(door, scale_, none);
    TurnEverythingOn(settings_);
  }

  bool Run() {
    if (!pictures_) return false;
    IconCache icons(settings_.iconSet, scale_, NoFile,
                    ResourceIcons(static_cast<HMODULE>(pictures_->Handle())));
    const MemoryBitmap page(WindowDc(nullptr).Dc(), width_, scale_.ScaleX(42));
    Recording recording;
    RecordingCanvas recorder(page.Dc(), recording);
    TodayPreview recorded = Make(icons);
    recorded.DrawAppointment(recorder, width_, 0);
    recording.steps.clear();  // the background was made in the first one
    recorded.DrawAppointment(recorder, width_, 0);

    GdiCanvas canvas(page.Dc());
    TodayPreview preview = Make(icons);
    preview.DrawAppointment(canvas, width_, 0);
    Comparison redraws;
    for (int round = 0; round < kRounds; ++round) {
      const Stopwatch watch;
      preview.DrawAppointment(canvas, width_, 0);
      const double ours = watch.Milliseconds();
      const Stopwatch bareWatch;
      for (const auto& step : recording.steps) step();
      redraws.Add(ours, bareWatch.Milliseconds());
    }
    Print(redraws, recording.steps.size());
    return true;
  }

 private:
  TodayPreview Make(IconSource& icons) {
    return {settings_, scale_, machine_.locale, language_, icons, NoFile};
  }
  static std::unique_ptr<Image> NoFile(const std::wstring&) { return nullptr; }

  void Print(const Comparison& redraws, std::size_t steps) const {
    PrintRatio(("preview drawn anew, " + name_).c_str(), redraws, kAim, "ms");
    PrintFigure("  the slowest of a hundred", redraws.ours.Quantile(0.99),
                Spread(redraws.ours.Quantile(0.5), redraws.ours.Quantile(1)), kMillisecondsAim,
                "ms", std::to_string(steps) + " texts, icons and copies");
  }

  WindowsMachine machine_;
  int width_ = 0;
  std::string name_;
  ScreenScale scale_;
  Language language_;
  std::unique_ptr<ResourceLibrary> pictures_;
  SettingsStore settings_;
};

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::PreviewBench().Run() ? 0 : 1;
}
