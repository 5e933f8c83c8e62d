#include "preview/today_preview.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "preview/task_order.h"
#include "resources/text/text_ids.h"
#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

class LoadedSettings : public testing::Test {
 protected:
  explicit LoadedSettings(int dpi = 96) : scale(dpi, dpi, false) {
    Machine door = machine.Door();
    std::unique_ptr<ResourceLibrary> unused;
    settings.Load(door, scale, unused);
  }

  MemoryMachine machine;
  ScreenScale scale;
  SettingsStore settings;
};

class TodayLooks : public LoadedSettings {};

TEST_F(TodayLooks, FollowTheSettings) {
  TodayLook look = ReadTodayLook(settings);
  EXPECT_EQ(look.displayFormat, 6);
  EXPECT_FALSE(look.twelveHourClock);
  EXPECT_EQ(look.appointmentIcons, 479u);
  EXPECT_EQ(look.taskIcons, 383u);
  EXPECT_EQ(look.shadowColor, Rgb(40, 40, 40));
  EXPECT_EQ(look.appointment.font, look.general.font);
  EXPECT_EQ(look.general.color, settings.themeColors.color1);

  settings.calendar.ApptDisplayFormat.Set(13);
  settings.fonts.FontGnrlUseAdvncd.Set(1);
  settings.fonts.FontGnrlSize.Set(14);
  settings.fonts.FontGeneral.height.Set(15);
  settings.fonts.FontCalApptBusy.height.Set(16);
  settings.fonts.FontTskDueToday.height.Set(17);
  settings.fonts.FontTskDueToday.color.Set(kRed);
  settings.colors.GeneralFontColor.Set(0x123456);
  settings.colors.ShadowFontColor.Set(kWhite);
  settings.calendar.TaskLeftAlignIcon2.Set(8);
  settings.tasks.TaskTabLeftAlignIcon1.Set(2);
  look = ReadTodayLook(settings);
  EXPECT_EQ(look.displayFormat, 6);
  EXPECT_EQ(look.general.font.height, 14);
  EXPECT_EQ(look.columnMeasure.font.height, 15);
  EXPECT_EQ(look.appointment.font.height, 16);
  EXPECT_EQ(look.appointment.color, 0x123456u);
  EXPECT_EQ(look.task.font.height, 17);
  EXPECT_EQ(look.task.color, kRed);
  EXPECT_EQ(look.shadowColor, kWhite);
  EXPECT_EQ(look.calendarTaskSlots, (IconSlots{0, 8}));
  EXPECT_EQ(look.taskSlots, (IconSlots{2, 0}));
}

class Preview : public LoadedSettings {
 protected:
  Preview() {
    machine.libraries.Put(L"\\texts.dll", {{IDS_SAMPLE_APPOINTMENT, L"Meeting"},
                                           {IDS_SAMPLE_LOCATION, L"Room 2"},
                                           {IDS_SAMPLE_TASK, L"Report"}});
    language = machine.libraries.Load(L"\\texts.dll");
  }
  TodayPreview Make() {
    return {settings,       scale, machine.locale,
            language.get(), icons, [this](const std::wstring& path) { return Load(path); }};
  }
  std::unique_ptr<Image> Load(const std::wstring& path) {
    asked += Utf8(path) + " ";
    const auto size = files.find(path);
    if (size == files.end()) return nullptr;
    return std::make_unique<RecordedImage>("water", size->second.first, size->second.second);
  }

  std::unique_ptr<ResourceLibrary> language;
  RecordedIcons icons;
  Recorder page;
  std::map<std::wstring, std::pair<int, int>> files;  // sizes of pictures
  std::string asked;
};

constexpr char kTwoStrips[] = "canvas 240x42; canvas 240x42; fill d7b798 @0,0 240x42; ";
constexpr char kEdges[] = "fill 0 @0,0 240x1; fill 0 @0,41 240x1; ";

TEST_F(Preview, StandsInTheMiddleOfItsStrip) {
  settings.calendar.ClrApptRightIcons.Set(1);
  TodayPreview preview = Make();
  preview.DrawAppointment(page, 240, 30);
  // 13 high, from 21 - 13 / 2; the column 66 for its words and 12 for the rectangle.
  const std::string row =
      "copy @0,0 240x42; 12:00: right @4,15-76; Meeting @78,15-223; reminder @225,15; "
      "fill 0 @5,16 6x11; fill ffffff @6,17 4x9; copy @0,30 240x42";
  EXPECT_EQ(page.Take(),
            std::string("font 12; ") + kTwoStrips + kEdges + "font 12; font 12; " + row);
  // A second paint asks for nothing again; a changed setting is seen.
  preview.DrawAppointment(page, 240, 30);
  EXPECT_EQ(page.Take(), row);
  settings.calendar.ApptDisplayFormat.Set(12);
  settings.fonts.FontGnrlSize.Set(10);
  preview.DrawAppointment(page, 240, 0);
  EXPECT_EQ(page.Take(),
            "font 10; font 10; font 10; copy @0,0 240x42; Meeting @14,11-223 h10; "
            "reminder @225,10; [12:00-15:00] @14,21-238 h10; fill 0 @4,12 6x19; "
            "fill ffffff @5,13 4x17; copy @0,0 240x42");
}

TEST_F(Preview, OfATaskFlowsWithTheIconsOfTheTasksTab) {
  settings.tasks.TasksRightIcons.Set(32 + 2);
  settings.tasks.TaskTabLeftAlignIcon2.Set(1);
  settings.calendar.FoldingType.Set(1);
  TodayPreview preview = Make();
  preview.DrawTask(page, 240, 0);
  EXPECT_EQ(page.Take(), std::string("font 12; ") + kTwoStrips + kEdges +
                             "font 12; font 12; copy @0,0 240x42; reminder @1,15; "
                             "task_not_checked @66,17; Report @77,15-238; high_importance @115,15; "
                             "private @128,15; copy @0,0 240x42");
  EXPECT_EQ(asked, "\\Windows\\tdywater.gif \\windows\\stwater.gif ");
}

TEST_F(Preview, HasABandOfTheWatermarkWhereThatIsLargeEnough) {
  const struct {
    int width, height;
    const char* band;
  } cases[] = {
      {240, 52, "water @0,0 but ff @0,10 240x42; "},
      {320, 159, "water @0,0 but ff @0,10 240x42; "},
      {240, 160, "water @0,0 but ff @0,0 240x42; "},
      {240, 320, "water @0,0 but ff @0,160 240x42; "},
      {240, 51, ""},
      {239, 320, ""},
  };
  for (const wchar_t* file : {L"\\Windows\\tdywater.gif", L"\\windows\\stwater.gif"}) {
    for (const auto& c : cases) {
      files = {{file, {c.width, c.height}}};
      Make().DrawTask(page, 240, 0);
      const std::string notes = page.Take();
      const std::string expected = std::string(kTwoStrips) + c.band + kEdges;
      EXPECT_NE(notes.find(expected), std::string::npos) << c.width << 'x' << c.height << notes;
    }
  }
}

class TaskOrder : public LoadedSettings {};

TEST_F(TaskOrder, TakesTheKeysInTurnAndTheSubjectLast) {
  TodayItem early, late, undated, done;
  early.end = 39000;
  late.end = 39001;
  early.importance = kHighImportance;
  early.subject = L"b";
  late.subject = L"A";
  done.completed = true;
  const auto compare = [&](const TodayItem& left, const TodayItem& right) {
    return CompareTasks(left, right, settings.tasks, machine.locale);
  };
  EXPECT_LT(compare(early, late), 0);
  EXPECT_GT(compare(undated, late), 0);
  settings.tasks.TsksSrt1Dirctn.Set(0);
  EXPECT_GT(compare(early, late), 0);
  settings.tasks.TsksSrt1.Set(kByActivity);
  EXPECT_GT(compare(early, late), 0);  // by importance
  for (DwordSetting* key : {&settings.tasks.TsksSrt2, &settings.tasks.TsksSrt3}) key->Set(99);
  EXPECT_GT(compare(early, late), 0);  // by subject, ascending
  early.active = true;
  EXPECT_GT(compare(early, late), 0);
  settings.tasks.TsksSrt1Dirctn.Set(1);
  EXPECT_LT(compare(early, late), 0);

  EXPECT_FALSE(IsHidden(done, settings.tasks));
  settings.tasks.HideCompletedTasks.Set(1);
  EXPECT_TRUE(IsHidden(done, settings.tasks));
  EXPECT_FALSE(IsHidden(early, settings.tasks));
}

TEST(IconCache, AsksForEachIconOnce) {
  std::string asked;
  IconCache cache([&](IconSymbol symbol) -> std::unique_ptr<Image> {
    asked += Utf8(SymbolName(symbol)) + " ";
    if (symbol == IconSymbol::kLink) return nullptr;
    return std::make_unique<RecordedImage>("icon", 12, 12);
  });
  for (int time = 0; time < 2; ++time) {
    EXPECT_EQ(cache.Find(IconSymbol::kLink), nullptr);
    EXPECT_NE(cache.Find(IconSymbol::kRegenerated), nullptr);
  }
  EXPECT_EQ(asked, "link regenerated ");
}

}  // namespace
}  // namespace tidewell
