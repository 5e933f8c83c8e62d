// Shows the preview with one setting after another, captioned, as many on a sheet as the screen has
// room for; says "picture NAME" for each sheet and waits as the tour does.
#include <windows.h>

#include <cstdio>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/memory/memory_machine.h"
#include "platform/windows/windows_machine.h"
#include "preview/today_preview.h"
#include "preview/windows/gdi_canvas.h"
#include "preview/windows/resource_icons.h"
#include "resources/text/text_ids.h"
#include "win32/gdi.h"
#include "win32/tahoma.h"

namespace tidewell {

namespace {

struct Variant {
  std::wstring caption;
  std::function<void(SettingsStore&)> choose;
  std::function<void(TodayItem&)> change = [](TodayItem&) {};
  bool isTask = false;
};

Variant Format(std::uint32_t format) {
  return {L"display format " + std::to_wstring(format),
          [=](SettingsStore& s) { s.calendar.ApptDisplayFormat.Set(format); }};
}

// With a title that is too long for one line.
Variant Folding(std::uint32_t type, std::uint32_t format) {
  return {L"folding type " + std::to_wstring(type) + L", format " + std::to_wstring(format),
          [=](SettingsStore& s) {
            s.calendar.FoldingType.Set(type);
            s.calendar.ApptDisplayFormat.Set(format);
          },
          [](TodayItem& item) { item.subject += L" " + item.subject + L" " + item.subject; }};
}

Variant Shadow(std::uint32_t style) {
  return {L"shadow " + std::to_wstring(style), [=](SettingsStore& s) {
            s.fonts.UseShadowColor.Set(style);
            s.colors.GeneralFontColor.Set(Rgb(255, 255, 255));
          }};
}

void UseAdvancedFonts(SettingsStore& s) {
  s.fonts.FontGnrlUseAdvncd.Set(1);
  s.fonts.FontCalApptBusy.weight.Set(700);
  s.fonts.FontCalApptBusy.italic.Set(1);
  s.fonts.FontTskDueToday.height.Set(s.fonts.FontTskDueToday.height.Value() * 4 / 3);
}

void UseSlots(SettingsStore& s) {
  s.calendar.ApptLeftAlignIcon1.Set(kCategoryIcon);
  s.calendar.ApptLeftAlignIcon2.Set(kReminderIcon);
  s.tasks.TaskTabLeftAlignIcon1.Set(kImportanceIcon);
  s.tasks.TaskTabLeftAlignIcon2.Set(kNoteIcon);
}

const Variant kVariants[] = {
    Format(1),
    Format(2),
    Format(3),
    Format(4),
    Format(5),
    Format(6),
    Format(7),
    Format(8),
    Format(9),
    Format(10),
    Format(11),
    Format(12),
    Folding(0, 6),
    Folding(1, 6),
    Folding(2, 6),
    Folding(0, 11),
    Folding(1, 11),
    Folding(2, 8),
    Shadow(1),
    Shadow(2),
    Shadow(3),
    Shadow(4),
    {L"advanced fonts", UseAdvancedFonts},
    {L"indentation", [](SettingsStore& s) { s.root.IndentItems.Set(1); }},
    {L"thin lines", [](SettingsStore& s) { s.root.UseThinLines.Set(1); }},
    {L"conflict", [](SettingsStore&) {}, [](TodayItem& item) { item.overlaps = true; }},
    {L"conflict, format 9, thin lines",
     [](SettingsStore& s) {
       s.calendar.ApptDisplayFormat.Set(9);
       s.root.UseThinLines.Set(1);
     },
     [](TodayItem& item) { item.overlaps = true; }},
    {L"two left icons, no rectangles",
     [](SettingsStore& s) {
       UseSlots(s);
       s.calendar.LeadingRects.Set(0);
     }},
    {L"all day", UseSlots, [](TodayItem& item) { item.allDay = true; }},
    {L"all day, format 9", [](SettingsStore& s) { s.calendar.ApptDisplayFormat.Set(9); },
     [](TodayItem& item) { item.allDay = true; }},
    {L"the middle of many days", [](SettingsStore& s) { s.calendar.ApptDisplayFormat.Set(1); },
     [](TodayItem& item) { --item.start, ++item.end; }},
    {L"task", [](SettingsStore&) {}, [](TodayItem&) {}, true},
    {L"task, format 7, two left icons",
     [](SettingsStore& s) {
       UseSlots(s);
       s.calendar.ApptDisplayFormat.Set(7);
     },
     [](TodayItem& item) { item.active = true; }, true},
    {L"task, completed, advanced fonts", UseAdvancedFonts,
     [](TodayItem& item) {
       item.completed = item.regenerating = true;
       item.importance = kLowImportance;
       item.end = kNoDate;
     },
     true},
};

class PreviewSheet {
 public:
  PreviewSheet() {
    Machine door = machine_.Door();
    const ScreenFacts screen = machine_.system.Screen();
    scale_ = ScreenScale(screen.dpiX, screen.dpiY, false);
    installed_.Load(door, scale_, language_);
    const bool isLow = scale_.ScaleX(1) < 2;
    library_ = machine_.libraries.Load(installed_.installFolder +
                                       (isLow ? L"\\LowDpiRes.dll" : L"\\HighDpiRes.dll"));
    icons_.emplace(installed_.iconSet, scale_, NoFile,
                   ResourceIcons(library_ ? static_cast<HMODULE>(library_->Handle()) : nullptr));
    font_ = TahomaFont(scale_.ScaleX(9), FW_NORMAL);

    WNDCLASSW plain{};
    plain.lpfnWndProc = DefWindowProcW;
    plain.lpszClassName = L"PreviewSheet";
    RegisterClassW(&plain);
    window_ = CreateWindowExW(0, plain.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0,
                              screen.width, screen.height, nullptr, nullptr, nullptr, nullptr);
  }
  PreviewSheet(const PreviewSheet&) = delete;
  PreviewSheet& operator=(const PreviewSheet&) = delete;
  ~PreviewSheet() { DestroyWindow(window_); }

  bool ShowAll() {
    HandleMessages();
    const WindowDc dc(window_);
    const RECT client = ClientArea(window_);
    int sheet = 0;
    int y = 0;
    for (const Variant& variant : kVariants) {
      if (y == 0) FillPlain(dc.Dc(), client, kWhite);
      y += Draw(dc.Dc(), client.right, variant, y);
      const bool isFull = y + scale_.ScaleX(kStep) > client.bottom;
      if (!isFull && &variant != std::end(kVariants) - 1) continue;
      if (!Say(++sheet)) return false;
      y = 0;
    }
    return true;
  }

 private:
  static constexpr int kCaption = 11;
  static constexpr int kStep = kCaption + 42;

  // Returns the height that was taken.
  int Draw(HDC dc, int width, const Variant& variant, int y) {
    {
      const Selected font(dc, font_.Get());
      RECT place{scale_.ScaleX(2), y, width, y + scale_.ScaleX(kCaption)};
      DrawTextW(dc, variant.caption.c_str(), -1, &place, DT_SINGLELINE | DT_NOPREFIX);
    }
    MemoryMachine device;
    Machine door{device.registry, device.files, machine_.locale, device.libraries, device.system};
    Language none;
    SettingsStore settings;
    settings.Load(door, scale_, none);
    variant.choose(settings);
    TodayPreview preview(settings, scale_, machine_.locale, language_, *icons_, NoFile);
    const int today = DayNumber(machine_.locale.Now());
    TodayItem item = variant.isTask
                         ? SampleTask(today, language_.Text(IDS_SAMPLE_TASK))
                         : SampleAppointment(today, language_.Text(IDS_SAMPLE_APPOINTMENT),
                                             language_.Text(IDS_SAMPLE_LOCATION));
    variant.change(item);
    GdiCanvas canvas(dc);
    preview.DrawItem(canvas, item, width, y + scale_.ScaleX(kCaption));
    return scale_.ScaleX(kStep);
  }

  static std::unique_ptr<Image> NoFile(const std::wstring&) { return nullptr; }

  static bool Say(int sheet) {
    HandleMessages();
    std::printf("picture preview-%d\n", sheet);
    std::fflush(stdout);
    char answer[16];
    return std::fgets(answer, sizeof answer, stdin) != nullptr;
  }

  // What was drawn reaches the screen when nothing else waits.
  static void HandleMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  }

  WindowsMachine machine_;
  ScreenScale scale_;
  SettingsStore installed_;
  Language language_;
  std::unique_ptr<ResourceLibrary> library_;
  std::optional<IconCache> icons_;
  Font font_;
  HWND window_ = nullptr;
};

}  // namespace

}  // namespace tidewell

int main() {
  if (!tidewell::PreviewSheet().ShowAll()) return 1;
  std::puts("end of the sheets");
}
