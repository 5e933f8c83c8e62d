// What the settings say about the look of a row of the Today screen.
#pragma once

#include <array>
#include <cstdint>

#include "preview/color.h"
#include "preview/text_drawing.h"
#include "settings/setting.h"

namespace tidewell {

class SettingsStore;

// The codes of a row's left icon slots; kNoIcon leaves one empty.
using IconSlots = std::array<std::uint32_t, 2>;

struct FontAndColor {
  LogFont font;
  Color color = kBlack;
};

struct TodayLook {
  int displayFormat = 6;  // 1 to 12
  bool twoDigitHours = false;
  bool twelveHourClock = true;
  std::uint32_t humanTime = 0;  // the hour of the morning up to which a night counts as one day
  bool leadingRects = true;
  bool thinLines = false;
  bool marksConflicts = true;
  bool hidesAllDayIcon = false;
  bool indentsItems = false;
  std::uint32_t foldingType = 2;
  std::uint32_t appointmentIcons = 0x1DF;
  std::uint32_t taskIcons = 0x17F;
  IconSlots appointmentSlots{};
  IconSlots calendarTaskSlots{};  // of tasks among the appointments
  IconSlots taskSlots{};          // of tasks on their own tab
  std::uint32_t shadowStyle = kNoShadow;
  Color shadowColor = kDefaultShadowColor;
  bool advancedFonts = false;
  FontAndColor general;        // the plain one, whatever advancedFonts says
  FontAndColor columnMeasure;  // what the time column is measured in
  FontAndColor appointment;
  FontAndColor task;

  // The time stands in a column of its own, ...
  bool HasTimeColumn() const { return displayFormat < 7; }
  // ... before the title, ...
  bool HasInlineTime() const { return displayFormat >= 7 && displayFormat <= 10; }
  // ... or in the second line.
  bool HasSecondLine() const { return displayFormat > 10; }
  // Only the start is shown, or only the end on the last day.
  bool HasShortTimes() const { return displayFormat <= 10 && displayFormat % 2 == 0; }
};

// A display format that there is not counts as the default one.
TodayLook ReadTodayLook(const SettingsStore& settings);

}  // namespace tidewell
