#include "preview/today_look.h"

#include "settings/settings_store.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kDisplayFormats = 12;

Color FirstColor(std::uint32_t own, std::uint32_t otherwise) {
  return own == kNoColor ? otherwise : own;
}

FontAndColor PlainFont(const SettingsStore& settings) {
  FontAndColor plain;
  plain.font = settings.fonts.FontGeneral.Font();
  plain.font.height = settings.fonts.FontGnrlSize.Signed();
  plain.font.weight = static_cast<std::int32_t>(kFontThin);
  plain.font.italic = plain.font.underline = plain.font.strikeOut = 0;
  plain.color = FirstColor(settings.colors.GeneralFontColor.Value(), settings.themeColors.color1);
  return plain;
}

FontAndColor FontOf(const FontSetting& setting, Color general) {
  return {setting.Font(), FirstColor(setting.Color(), general)};
}

void ReadFonts(const SettingsStore& settings, TodayLook& look) {
  look.advancedFonts = settings.fonts.FontGnrlUseAdvncd.Value() == 1;
  look.general = PlainFont(settings);
  look.columnMeasure = look.appointment = look.task = look.general;
  if (look.advancedFonts) {
    look.columnMeasure = FontOf(settings.fonts.FontGeneral, look.general.color);
    look.appointment = FontOf(settings.fonts.FontCalApptBusy, look.general.color);
    look.task = FontOf(settings.fonts.FontTskDueToday, look.general.color);
  }
  look.shadowStyle = settings.fonts.UseShadowColor.Value();
  look.shadowColor = FirstColor(settings.colors.ShadowFontColor.Value(), kDefaultShadowColor);
}

void ReadIcons(const SettingsStore& settings, TodayLook& look) {
  const CalendarSettings& calendar = settings.calendar;
  const TasksSettings& tasks = settings.tasks;
  look.appointmentIcons = calendar.ClrApptRightIcons.Value();
  look.taskIcons = tasks.TasksRightIcons.Value();
  look.appointmentSlots = {calendar.ApptLeftAlignIcon1.Value(),
                           calendar.ApptLeftAlignIcon2.Value()};
  look.calendarTaskSlots = {calendar.TaskLeftAlignIcon1.Value(),
                            calendar.TaskLeftAlignIcon2.Value()};
  look.taskSlots = {tasks.TaskTabLeftAlignIcon1.Value(), tasks.TaskTabLeftAlignIcon2.Value()};
}

}  // namespace

TodayLook ReadTodayLook(const SettingsStore& settings) {
  const CalendarSettings& calendar = settings.calendar;
  TodayLook look;
  const std::uint32_t format = calendar.ApptDisplayFormat.Value();
  if (format >= 1 && format <= kDisplayFormats) look.displayFormat = static_cast<int>(format);
  look.twoDigitHours = calendar.Force2DigitsTImeFrmt.Value() == 1;
  look.twelveHourClock = settings.twelveHourClock;
  look.humanTime = calendar.HumanTime.Value();
  look.leadingRects = calendar.LeadingRects.Value() != 0;
  look.thinLines = settings.root.UseThinLines.Value() == 1;
  look.marksConflicts = calendar.Conflicting.Value() == 1;
  look.hidesAllDayIcon = calendar.HideAlldayEventIcon.Value() == 1;
  look.indentsItems = settings.root.IndentItems.Value() == 1;
  look.foldingType = calendar.FoldingType.Value();
  ReadIcons(settings, look);
  ReadFonts(settings, look);
  return look;
}

}  // namespace tidewell
