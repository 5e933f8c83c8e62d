// The order of tasks on the Today screen.
#pragma once

#include "platform/locale.h"
#include "preview/today_item.h"
#include "settings/catalogue/tasks_settings.h"

namespace tidewell {

// What tasks are sorted by, as TsksSrt1, TsksSrt2 and TsksSrt3 have it; by any other number all
// tasks are equal.
enum TaskSortKey : std::uint32_t {
  kByDueDate = 0,  // without one last
  kByStartDate = 1,
  kByImportance = 2,
  kByCompletion = 3,  // what is to be done first
  kByActivity = 4,    // the active task first
  kBySubject = 5,
};

// Below, equal to or above 0. A direction of 1 is ascending, any other descending; tasks that all
// three keys leave equal are ordered by their subjects.
int CompareTasks(const TodayItem& left, const TodayItem& right, const TasksSettings& settings,
                 Locale& locale);

bool IsHidden(const TodayItem& task, const TasksSettings& settings);

}  // namespace tidewell
