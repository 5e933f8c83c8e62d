#include "preview/today_item.h"

#include <utility>

namespace tidewell {

namespace {

using Shown = std::optional<IconSymbol>;

Shown When(bool condition, IconSymbol symbol) {
  return condition ? Shown(symbol) : std::nullopt;
}

Shown RecurrenceIcon(const TodayItem& item) {
  if (item.recurrence == 2) return IconSymbol::kRecurringSecond;
  return When(item.recurrence == 1, IconSymbol::kRecurring);
}

Shown ImportanceIcon(const TodayItem& item) {
  if (!item.IsTask()) return std::nullopt;
  if (item.importance == kLowImportance) return IconSymbol::kLowImportance;
  return When(item.importance == kHighImportance, IconSymbol::kHighImportance);
}

}  // namespace

std::optional<IconSymbol> IconOf(const TodayItem& item, std::uint32_t code) {
  switch (code) {
    case kReminderIcon:
      return When(item.reminder != 0, IconSymbol::kReminder);
    case kPrivateIcon:
      return When(item.sensitivity == 2, IconSymbol::kPrivate);
    case kRecurringIcon:
      return RecurrenceIcon(item);
    case kNoteIcon:
      return When(item.note != 0, IconSymbol::kNote);
    case kCategoryIcon:
      return IconSymbol::kCategory;
    case kImportanceIcon:
      return ImportanceIcon(item);
    case kAttachedIcon:
      return IconSymbol::kAttached;
    case kAttendeesIcon:
      return When(!item.IsTask() && item.attendees, IconSymbol::kAttendees);
    case kLinkIcon:
      return When(item.link != 0, IconSymbol::kLink);
    default:
      return std::nullopt;
  }
}

TodayItem SampleAppointment(int today, std::wstring subject, std::wstring location) {
  TodayItem item;
  item.subject = std::move(subject);
  item.location = std::move(location);
  item.start = today + 0.5;
  item.end = item.start + 0.125;
  item.reminder = item.note = item.link = 1;
  item.sensitivity = 2;
  item.recurrence = 1;
  item.attendees = true;
  return item;
}

TodayItem SampleTask(int today, std::wstring subject) {
  TodayItem item;
  item.kind = ItemKind::kTask;
  item.subject = std::move(subject);
  item.end = today;
  item.reminder = item.note = item.link = 1;
  item.sensitivity = 2;
  item.recurrence = 1;
  item.importance = kHighImportance;
  return item;
}

}  // namespace tidewell
