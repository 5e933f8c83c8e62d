// Writes the schemes that ship into a folder: write_schemes FOLDER. Fails when a text would be hard
// to read on the background that its scheme gives it.
#include <cstdio>
#include <fstream>
#include <ios>
#include <string>
#include <utility>
#include <vector>

#include "addons/schemes.h"
#include "platform/memory/memory_machine.h"
#include "preview/color.h"
#include "preview/text_drawing.h"

namespace tidewell {

namespace {

constexpr double kLeastContrast = 4.5;

// "0x336699" as it is written for the web.
constexpr Color Web(std::uint32_t number) {
  return Rgb(number >> 16 & 0xFF, number >> 8 & 0xFF, number & 0xFF);
}

struct Palette {
  const wchar_t* name;
  ShadowStyle shadowStyle;
  Color shadow;
  Color text;
  Color titles;
  Color urgent;
  Color faint;  // past and completed
  Color lines;
  Color selection;
  Color selectedText;
  Color freeHours;
  Color busyHours;
  Color month;
  Color today;
  Color selectedDay;
};

const Palette kPalettes[] = {
    {L"Light", kNoShadow, kNoColor, Web(0x1F2933), Web(0x1D4F91), Web(0xB3261E), Web(0x5F6B76),
     Web(0xA9B6C4), Web(0xCFE2F7), Web(0x10233A), Web(0xE8EDF3), Web(0x2F74C0), Web(0xFFFFFF),
     Web(0xB3261E), Web(0x1D4F91)},
    {L"Dark", kShadowDownRight, Web(0x000000), Web(0xF1F3F5), Web(0xFFD166), Web(0xFF8A80),
     Web(0xA7B0BA), Web(0x5B6672), Web(0x27496D), Web(0xFFFFFF), Web(0x2B3138), Web(0x5AA9E6),
     Web(0x1B1F24), Web(0xFFD166), Web(0x8CC8FF)},
    {L"High contrast", kShadowOutline, Web(0x000000), Web(0xFFFFFF), Web(0xFFFF00), Web(0xFF9C9C),
     Web(0xD6D6D6), Web(0xFFFFFF), Web(0xFFFF00), Web(0x000000), Web(0x000000), Web(0xFFFF00),
     Web(0x000000), Web(0xFFFF00), Web(0x00FFFF)},
    {L"Forest", kNoShadow, kNoColor, Web(0x22301F), Web(0x2F5D2A), Web(0x9C3B12), Web(0x5E6B58),
     Web(0x9BB08C), Web(0xD5E4C3), Web(0x1C3316), Web(0xE9F0DF), Web(0x5B8C3A), Web(0xF4F7EC),
     Web(0x9C3B12), Web(0x2F5D2A)},
    {L"Lake", kNoShadow, kNoColor, Web(0x14313A), Web(0x0B5A6E), Web(0x9A3324), Web(0x51696F),
     Web(0x8FB6BF), Web(0xC5E3E8), Web(0x0B2F38), Web(0xE2F0F2), Web(0x2C8799), Web(0xF0F8F9),
     Web(0x9A3324), Web(0x0B5A6E)},
    {L"Heather", kNoShadow, kNoColor, Web(0x322638), Web(0x6A3B78), Web(0xA3293D), Web(0x6B5F70),
     Web(0xBCA6C4), Web(0xE6D8EB), Web(0x351F3E), Web(0xF1E9F4), Web(0x8E5BA0), Web(0xFAF6FB),
     Web(0xA3293D), Web(0x6A3B78)},
};

bool IsReadable(const Palette& palette) {
  const std::pair<Color, Color> texts[] = {{palette.selectedText, palette.selection},
                                           {palette.today, palette.month},
                                           {palette.selectedDay, palette.month}};
  for (const auto& [text, background] : texts) {
    if (Contrast(text, background) >= kLeastContrast) continue;
    std::fprintf(stderr, "%ls: the contrast is only %.2f\n", palette.name,
                 Contrast(text, background));
    return false;
  }
  return true;
}

void ChooseColors(const Palette& palette, ColorsSettings& s) {
  s.GeneralFontColor.Set(palette.text);
  s.ShadowFontColor.Set(palette.shadow);
  for (DwordSetting* line : {&s.SeperatorLineClr, &s.ClrBreakingLineClr, &s.TskBreakingLineClr}) {
    line->Set(palette.lines);
  }
  s.HighlightBgClr.Set(palette.selection);
  s.HighlightTextClr.Set(palette.selectedText);
  s.TimeLinesBgClr.Set(palette.freeHours);
  s.TimeLinesDfltClr.Set(palette.busyHours);
  s.ClrPopupClrBg.Set(palette.month);
  s.ClrPopupCurr.Set(palette.today);
  s.ClrPopupHighlight.Set(palette.selectedDay);
  s.ClrStatusFree.Set(palette.freeHours);
  s.ClrStatusBusy.Set(palette.busyHours);
  s.ClrStatusTentative.Set(Blend(palette.busyHours, palette.freeHours, 128));
  s.ClrStatusOutofoffice.Set(palette.urgent);
}

void ChooseFonts(const Palette& palette, FontsSettings& s) {
  s.FontGnrlUseAdvncd.Set(1);
  s.UseShadowColor.Set(palette.shadowStyle);
  for (FontSetting* font : {&s.FontCalDayTitles, &s.FontTskGroupingTtls, &s.FontNoteTitles,
                            &s.FontContactTitles, &s.FontMsgsTitles, &s.FontSEGroupingTtls}) {
    font->color.Set(palette.titles);
  }
  for (FontSetting* font : {&s.FontCalTasksOverdue, &s.FontTskOverdue}) {
    font->color.Set(palette.urgent);
  }
  for (FontSetting* font : {&s.FontCalPast, &s.FontCalCompleted, &s.FontCalTasksCompleted}) {
    font->color.Set(palette.faint);
  }
}

// The bytes of a palette's scheme.
std::vector<std::byte> SchemeOf(const Palette& palette) {
  MemoryMachine memory;
  const Machine machine = memory.Door();
  SettingsStore store;
  CategoryCatalog catalog(machine, store);
  Language language;
  store.Load(machine, ScreenScale(96, 96, false), language);
  ChooseColors(palette, store.colors);
  ChooseFonts(palette, store.fonts);
  memory.files.Put(store.todayItemFolder + L'\\');
  const std::wstring name = palette.name;
  Schemes(machine, store, catalog).Save(name);
  const std::wstring path = store.todayItemFolder + L"\\Schemes\\" + name + kSchemeExtension;
  return memory.files.Contents(path).value_or(std::vector<std::byte>());
}

bool WriteScheme(const std::string& folder, const Palette& palette) {
  const std::wstring name = std::wstring(palette.name) + kSchemeExtension;
  const std::vector<std::byte> bytes = SchemeOf(palette);
  std::ofstream file(folder + '/' + std::string(name.begin(), name.end()), std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !bytes.empty() && file.good();
}

}  // namespace

}  // namespace tidewell

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: write_schemes FOLDER\n", stderr);
    return 2;
  }
  for (const tidewell::Palette& palette : tidewell::kPalettes) {
    if (!tidewell::IsReadable(palette) || !tidewell::WriteScheme(argv[1], palette)) return 1;
  }
  return 0;
}
