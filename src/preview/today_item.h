// An appointment or a task, as far as a row of the Today screen shows it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/rect.h"
#include "preview/icons.h"
#include "preview/ole_date.h"

namespace tidewell {

enum class ItemKind : std::uint8_t { kAppointment = 1, kTask = 2 };

// One bit for each icon that a setting can choose: a slot holds one of them, a mask their sum.
enum IconCode : std::uint32_t {
  kNoIcon = 0,
  kReminderIcon = 1,
  kPrivateIcon = 2,
  kRecurringIcon = 4,
  kNoteIcon = 8,
  kCategoryIcon = 16,
  kImportanceIcon = 32,
  kAttachedIcon = 64,
  kAttendeesIcon = 128,
  kLinkIcon = 256,
};

enum Importance : int { kLowImportance = 0, kNormalImportance = 1, kHighImportance = 2 };

struct TodayItem {
  ItemKind kind = ItemKind::kAppointment;
  std::wstring subject;
  std::wstring location;  // of an appointment
  std::wstring leadText;  // of a task: what stands before its subject
  bool allDay = false;
  double start = kNoDate;  // of a task: its start date and its due date
  double end = kNoDate;
  double reminder = 0;  // these three are there when they are not 0
  double note = 0;
  double link = 0;
  int sensitivity = 0;  // 2 is private
  int recurrence = 0;   // 1 recurs; 2 recurs and has the second picture
  bool attendees = false;
  bool overlaps = false;  // another appointment
  bool completed = false;
  bool regenerating = false;
  bool active = false;
  int importance = kNormalImportance;

  // Where it was drawn last, in its canvas; the places are empty where the icon was not drawn.
  int checkBoxX = 0;
  Rect reminderPlace;
  Rect notePlace;
  Rect linkPlace;

  bool IsTask() const { return kind == ItemKind::kTask; }
  // Of a task: it is due on a day.
  bool IsDated() const { return end != kNoDate; }
};

// The icon that an item shows for a code; nothing where the item has no reason to show it.
std::optional<IconSymbol> IconOf(const TodayItem& item, std::uint32_t code);

// The items that the pages show, on a day given by its number.
TodayItem SampleAppointment(int today, std::wstring subject, std::wstring location);
TodayItem SampleTask(int today, std::wstring subject);

}  // namespace tidewell
