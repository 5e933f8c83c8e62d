#include "preview/task_order.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kAscending = 1;

template <typename Value>
int Order(const Value& left, const Value& right) {
  return left < right ? -1 : right < left ? 1 : 0;
}

int CompareBy(std::uint32_t key, const TodayItem& left, const TodayItem& right, Locale& locale) {
  switch (key) {
    case kByDueDate:
      return Order(left.end, right.end);
    case kByStartDate:
      return Order(left.start, right.start);
    case kByImportance:
      return Order(left.importance, right.importance);
    case kByCompletion:
      return Order(left.completed, right.completed);
    case kByActivity:
      return Order(right.active, left.active);
    case kBySubject:
      return locale.CompareIgnoringCase(left.subject, right.subject);
    default:
      return 0;
  }
}

}  // namespace

int CompareTasks(const TodayItem& left, const TodayItem& right, const TasksSettings& settings,
                 Locale& locale) {
  const struct {
    std::uint32_t key;
    std::uint32_t direction;
  } steps[] = {
      {settings.TsksSrt1.Value(), settings.TsksSrt1Dirctn.Value()},
      {settings.TsksSrt2.Value(), settings.TsksSrt2Dirctn.Value()},
      {settings.TsksSrt3.Value(), settings.TsksSrt3Dirctn.Value()},
      {kBySubject, kAscending},
  };
  for (const auto& step : steps) {
    const int order = CompareBy(step.key, left, right, locale);
    if (order != 0) return step.direction == kAscending ? order : -order;
  }
  return 0;
}

bool IsHidden(const TodayItem& task, const TasksSettings& settings) {
  return settings.HideCompletedTasks.Value() == 1 && task.completed;
}

}  // namespace tidewell
