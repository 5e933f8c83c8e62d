#include "pages/pim_page.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/calendar_programs.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace pim_ids;

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

class PimRules final : public PageRules {
 public:
  explicit PimRules(PageContext& context)
      : context_(context), programs_(Programs(context.machine.registry)) {}

  PageTabs Tabs() override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;

 private:
  DwordSetting& Program() const { return context_.settings.customPim.PimSw; }
  void Refuse(PageView& view);

  PageContext& context_;
  Choices programs_;
};

PageTabs PimRules::Tabs() {
  CustomPimSettings& s = context_.settings.customPim;
  return {
      RowTab(IDS_PIM_TAB_PROGRAM,
             {
                 DataList(1200, kProgram, IDS_PIM_PROGRAM, s.PimSw, programs_, 0),
                 DataList(kAppointmentReminderLabel, kAppointmentReminder,
                          IDS_PIM_APPOINTMENT_REMINDER, s.DefaultReminderAppts,
                          AppointmentReminders(), 0),
                 DataList(kTaskReminderLabel, kTaskReminder, IDS_PIM_TASK_REMINDER,
                          s.DefaultReminderTasks, TaskReminders(context_.machine.locale), 0),
             }),
      RowTab(IDS_PIM_TAB_OPTIONS,
             {
                 Check(kOverrideIcons, IDS_PIM_OVERRIDE_ICONS, s.OverridePimCatIcons),
                 Check(kOverrideColors, IDS_PIM_OVERRIDE_COLORS, s.OverridePimCatColros),
                 Check(kLeaveFusionRunning, IDS_PIM_LEAVE_FUSION_RUNNING, s.LeaveAFRunning),
                 Check(kHideAbc, IDS_PIM_HIDE_ABC, s.HideABCVals),
             }),
  };
}

// The program is stored as soon as it is chosen: the other controls depend on what is stored.
void PimRules::OnEvent(PageView& view, const PageEvent& event) {
  if (event.id != kProgram || event.kind != PageEventKind::kChosen) return;
  const std::uint32_t chosen = view.State(kProgram).data;
  if (chosen == DataOf(PimProgram::kCompanion) &&
      !IsInstalled(context_.machine.registry, CalendarProgram::kVelmontCalendar)) {
    Refuse(view);
  } else {
    Program().Set(chosen);
  }
}

// Falls back to the line whose text begins with the stored number, else to the first. No program's
// name begins with one, so it is the built-in one unless a language pack has it otherwise.
void PimRules::Refuse(PageView& view) {
  const Language& language = context_.language;
  if (context_.dialogs) {
    context_.dialogs->ShowMessage(language.Text(IDS_PIM_COMPANION_MISSING),
                                  language.Text(IDS_PIM_COMPANION_MISSING_CAPTION));
  }
  const std::wstring stored = FormatDecimal(Program().Signed());
  auto line = std::find_if(programs_.begin(), programs_.end(), [&](const Choice& program) {
    return program.TextIn(context_.language).starts_with(stored);
  });
  if (line == programs_.end()) line = programs_.begin();
  view.SetState(kProgram, ControlState::OfLine(static_cast<int>(line - programs_.begin())));
  Program().Set(line->data);
}

std::vector<Enabling> PimRules::Enabled(const PageView&) const {
  const std::uint32_t program = Program().Value();
  const bool builtIn = program == DataOf(PimProgram::kBuiltIn);
  return {{kAppointmentReminderLabel, builtIn},
          {kAppointmentReminder, builtIn},
          {kTaskReminderLabel, builtIn},
          {kTaskReminder, builtIn},
          {kOverrideIcons, !builtIn},
          {kOverrideColors, !builtIn},
          {kLeaveFusionRunning, program == DataOf(PimProgram::kAgendaFusion)},
          {kHideAbc, !builtIn}};
}

}  // namespace

std::unique_ptr<PageRules> MakePimPage(PageContext& context) {
  return std::make_unique<PimRules>(context);
}

}  // namespace tidewell
