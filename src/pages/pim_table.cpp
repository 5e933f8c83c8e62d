#include "pages/pim_table.h"

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/calendar_programs.h"

namespace tidewell {

namespace {

constexpr std::uint32_t DataOf(PimProgram program) {
  return static_cast<std::uint32_t>(program);
}

// The companion is always offered; whether it is there is asked when it is chosen.
Choices Programs(Registry& registry) {
  Choices choices{{L"", IDS_PIM_BUILT_IN, DataOf(PimProgram::kBuiltIn)},
                  {L"", IDS_PIM_COMPANION, DataOf(PimProgram::kCompanion)}};
  if (IsInstalled(registry, CalendarProgram::kPocketInformant)) {
    choices.emplace_back(L"", IDS_PIM_POCKET_INFORMANT, DataOf(PimProgram::kPocketInformant));
  }
  if (IsInstalled(registry, CalendarProgram::kAgendaFusion)) {
    choices.emplace_back(L"", IDS_PIM_AGENDA_FUSION, DataOf(PimProgram::kAgendaFusion));
  }
  if (IsInstalled(registry, CalendarProgram::kAgendaOne)) {
    choices.emplace_back(L"", IDS_PIM_AGENDA_ONE, DataOf(PimProgram::kAgendaOne));
  }
  return choices;
}

Choices AppointmentReminders() {
  Choices choices{{L"", IDS_PIM_NO_REMINDER, kNoReminder}};
  for (const int minutes : {0, 5, 10, 15, 30, 45}) {
    choices.emplace_back(FormatDecimal(minutes) + L" ", IDS_PIM_MINUTES,
                         static_cast<std::uint32_t>(minutes));
  }
  choices.emplace_back(L"1 ", IDS_PIM_HOUR, 60);
  choices.emplace_back(L"2 ", IDS_PIM_HOURS, 120);
  choices.emplace_back(L"4 ", IDS_PIM_HOURS, 240);
  choices.emplace_back(L"8 ", IDS_PIM_HOURS, 480);
  choices.emplace_back(L"1 ", IDS_PIM_DAY, 1440);
  return choices;
}

// Every half hour of the day, as the user reads the clock.
Choices TaskReminders(Locale& locale) {
  Choices choices{{L"", IDS_PIM_NO_REMINDER, kNoReminder}};
  for (std::uint32_t minutes = 0; minutes < 24 * 60; minutes += 30) {
    LocalTime time;
    time.hour = static_cast<std::uint16_t>(minutes / 60);
    time.minute = static_cast<std::uint16_t>(minutes % 60);
    choices.emplace_back(locale.FormatTime(time), minutes);
  }
  return choices;
}

}  // namespace

PageTable PimTable(PageContext& context) {
  using namespace pim_ids;
  CustomPimSettings& s = context.settings.customPim;
  return {
      Tab(IDS_PIM_TAB_PROGRAM, 1200, 1205,
          {
              DataList(1200, kProgram, IDS_PIM_PROGRAM, s.PimSw, Programs(context.machine.registry),
                       0),
              DataList(kAppointmentReminderLabel, kAppointmentReminder,
                       IDS_PIM_APPOINTMENT_REMINDER, s.DefaultReminderAppts, AppointmentReminders(),
                       0),
              DataList(kTaskReminderLabel, kTaskReminder, IDS_PIM_TASK_REMINDER,
                       s.DefaultReminderTasks, TaskReminders(context.machine.locale), 0),
          }),
      Tab(IDS_PIM_TAB_OPTIONS, 1206, 1209,
          {
              Check(kOverrideIcons, IDS_PIM_OVERRIDE_ICONS, s.OverridePimCatIcons),
              Check(kOverrideColors, IDS_PIM_OVERRIDE_COLORS, s.OverridePimCatColros),
              Check(kLeaveFusionRunning, IDS_PIM_LEAVE_FUSION_RUNNING, s.LeaveAFRunning),
              Check(kHideAbc, IDS_PIM_HIDE_ABC, s.HideABCVals),
          }),
  };
}

std::array<Enabling, 8> PimRule(std::uint32_t program) {
  using namespace pim_ids;
  const bool builtIn = program == DataOf(PimProgram::kBuiltIn);
  return {{{kAppointmentReminderLabel, builtIn},
           {kAppointmentReminder, builtIn},
           {kTaskReminderLabel, builtIn},
           {kTaskReminder, builtIn},
           {kOverrideIcons, !builtIn},
           {kOverrideColors, !builtIn},
           {kLeaveFusionRunning, program == DataOf(PimProgram::kAgendaFusion)},
           {kHideAbc, !builtIn}}};
}

}  // namespace tidewell
