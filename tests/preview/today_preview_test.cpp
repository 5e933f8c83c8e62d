#include "preview/today_preview.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "preview/task_order.h"
#include "resources/text/text_ids.h"
#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

TEST(Blend, RoundsExactly) {
  for (std::uint32_t weight = 0; weight <= 255; ++weight) {
    const std::uint32_t sum = 201 * weight + 77 * (255 - weight);
    const std::uint32_t mixed = (2 * sum + 255) / 510;
    EXPECT_EQ(Blend(Rgb(201, 77, 201), Rgb(77, 77, 77), weight), Rgb(mixed, 77, mixed)) << weight;
  }
}

TEST(OleDate, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(DayNumber({2008, 3, 14}), 39521);
  EXPECT_EQ(DayNumber({4501, 1, 1}), static_cast<int>(kNoDate));
  EXPECT_EQ(TimeOfDay(1.9993055).minute, 59);  // a hair before 23:59
}

class Preview : public testing::Test {
 protected:
  Preview() {
    Machine door = machine.Door();
    settings.Load(door, {}, language);
    machine.libraries.Put(L"\\texts.dll", {{IDS_SAMPLE_APPOINTMENT, L"Meeting"},
                                           {IDS_SAMPLE_LOCATION, L"Room 2"},
                                           {IDS_SAMPLE_TASK, L"Report"}});
    language.Load(machine.libraries, L"\\texts.dll", {});
  }
  TodayPreview Make() {
    return {settings, {}, machine.locale, language, icons, [this](const std::wstring& path) {
              asked += Utf8(path) + " ";
              return path == file ? std::make_unique<RecordedImage>("water", width, height)
                                  : nullptr;
            }};
  }

  MemoryMachine machine;
  SettingsStore settings;
  Language language;
  RecordedIcons icons;
  Recorder page;
  std::wstring file;  // the one picture there is
  int width = 0, height = 0;
  std::string asked;
};

const std::string kStrips = "canvas 240x42; canvas 240x42; fill d7b798 @0,0 240x42; ";
const std::string kEdges = "fill 0 @0,0 240x1; fill 0 @0,41 240x1; ";

TEST_F(Preview, ShowsTheSettingsInTheMiddleOfItsStrip) {
  settings.calendar.ClrApptRightIcons.Set(1);
  TodayPreview preview = Make();
  preview.DrawAppointment(page, 240, 30);
  // 13 high, from 21 - 13 / 2; the column 66 for its words and 12 for the rectangle.
  const std::string row =
      "copy @0,0 240x42; 12:00: right @4,15-76; Meeting @78,15-223; reminder @225,15; "
      "fill 0 @5,16 6x11; fill ffffff @6,17 4x9; copy @0,30 240x42";
  EXPECT_EQ(page.Take(), "font 12; " + kStrips + kEdges + "font 12; font 12; " + row);
  preview.DrawAppointment(page, 240, 30);
  EXPECT_EQ(page.Take(), row);  // nothing is asked for or made again

  settings.calendar.ApptDisplayFormat.Set(12);
  settings.fonts.FontGnrlUseAdvncd.Set(1);
  settings.fonts.FontGnrlSize.Set(14);
  settings.fonts.FontGeneral.height.Set(16);
  settings.fonts.FontCalApptBusy.height.Set(10);
  settings.colors.GeneralFontColor.Set(kRed);
  settings.fonts.UseShadowColor.Set(kShadowDown);
  preview.DrawAppointment(page, 240, 0);
  EXPECT_EQ(page.Take(),
            "font 10; font 16; font 14; copy @0,0 240x42; Meeting @14,12-223 h10 #282828; "
            "Meeting @14,11-223 h10 #ff; reminder @225,10; [12:00-15:00] @14,22-238 h10 #282828; "
            "[12:00-15:00] @14,21-238 h10 #ff; fill 0 @4,12 6x19; fill ffffff @5,13 4x17; "
            "copy @0,0 240x42");
}

TEST_F(Preview, OfATaskFlowsWithTheIconsOfTheTasksTab) {
  settings.tasks.TasksRightIcons.Set(32 + 2);
  settings.tasks.TaskTabLeftAlignIcon2.Set(1);
  settings.calendar.TaskLeftAlignIcon1.Set(2);
  settings.calendar.FoldingType.Set(1);
  settings.calendar.ApptDisplayFormat.Set(99);  // as 6
  Make().DrawTask(page, 240, 0);
  EXPECT_EQ(page.Take(), "font 12; " + kStrips + kEdges +
                             "font 12; font 12; copy @0,0 240x42; reminder @1,15; "
                             "task_not_checked @79,17; Report @90,15-238; high_importance @128,15; "
                             "private @141,15; copy @0,0 240x42");
  EXPECT_EQ(asked, "\\Windows\\tdywater.gif \\windows\\stwater.gif ");
}

TEST_F(Preview, HasABandOfTheWatermarkWhereThatIsLargeEnough) {
  const struct {
    int width, height;
    std::string band;
  } cases[] = {{240, 52, "water @0,0 from 0,10 240x42 but ff; "},
               {320, 159, "water @0,0 from 0,10 240x42 but ff; "},
               {240, 160, "water @0,0 from 0,0 240x42 but ff; "},
               {240, 320, "water @0,0 from 0,160 240x42 but ff; "},
               {240, 51, ""},
               {239, 320, ""}};
  for (const wchar_t* name : {L"\\Windows\\tdywater.gif", L"\\windows\\stwater.gif"}) {
    for (const auto& c : cases) {
      file = name;
      width = c.width;
      height = c.height;
      Make().DrawTask(page, 240, 0);
      const std::string notes = page.Take();
      EXPECT_NE(notes.find(kStrips + c.band + kEdges), std::string::npos) << notes;
    }
  }
}

TEST_F(Preview, SortsTasksByTheKeysInTurnAndTheSubjectLast) {
  TodayItem early, late;
  early.end = 39000;
  early.importance = kHighImportance;
  early.subject = L"b";
  late.subject = L"A";
  TasksSettings& tasks = settings.tasks;
  const auto isFirst = [&] { return CompareTasks(early, late, tasks, machine.locale) < 0; };
  EXPECT_TRUE(isFirst());
  tasks.TsksSrt1Dirctn.Set(0);
  EXPECT_FALSE(isFirst());
  late.end = early.end;
  EXPECT_FALSE(isFirst()) << "by importance";
  tasks.TsksSrt2Dirctn.Set(0);
  EXPECT_TRUE(isFirst());
  for (DwordSetting* key : {&tasks.TsksSrt2, &tasks.TsksSrt3}) key->Set(99);
  EXPECT_FALSE(isFirst()) << "by subject, ascending";
  early.completed = true;
  EXPECT_FALSE(IsHidden(early, tasks));
  tasks.HideCompletedTasks.Set(1);
  EXPECT_TRUE(IsHidden(early, tasks));
  EXPECT_FALSE(IsHidden(late, tasks));
}

// A set with a picture of the link, and the set that ships without one of the note.
TEST(IconCache, LooksIntoTheChosenSetForEachIconOnce) {
  IconSetSettings settings;
  std::string asked;
  const auto icon = [] { return std::make_unique<RecordedImage>("icon", 1, 1); };
  const auto cacheAt = [&](int dpi) {
    return IconCache(
        settings, ScreenScale(dpi, 96, false),
        [&](const std::wstring& path) {
          asked += Utf8(path) + " ";
          return path.ends_with(L"link.tga") ? icon() : nullptr;
        },
        [&](IconSymbol symbol) {
          asked += "shipped ";
          return symbol == IconSymbol::kNote ? nullptr : icon();
        });
  };
  IconCache cache = cacheAt(96);
  const auto ask = [&](IconSymbol symbol, bool isThere) {
    asked.clear();
    EXPECT_EQ(cache.Find(symbol) != nullptr, isThere);
    const std::string first = asked;
    asked.clear();
    cache.Find(symbol);
    EXPECT_EQ(asked, "");
    return first;
  };
  EXPECT_EQ(ask(IconSymbol::kLink, true), "shipped ");
  settings.InstallPath12.Set(L"\\set");
  EXPECT_EQ(ask(IconSymbol::kLink, true), "\\set\\link.png \\set\\link.tga ");
  EXPECT_EQ(ask(IconSymbol::kNote, false),
            "\\set\\note.png \\set\\note.tga \\set\\note.bmp shipped ");
  settings.InstallPath12.Set(L"\\12");
  settings.InstallPath18.Set(L"\\18");
  settings.InstallPath24.Set(L"\\24");
  for (const auto& [dpi, folder] : {std::pair(72, "\\12\\"),
                                    {139, "\\12\\"},
                                    {140, "\\18\\"},
                                    {187, "\\18\\"},
                                    {188, "\\24\\"},
                                    {288, "\\24\\"}}) {
    asked.clear();
    cacheAt(dpi).Find(IconSymbol::kLink);
    EXPECT_EQ(asked.substr(0, 4), folder) << dpi;
  }
}

}  // namespace
}  // namespace tidewell
