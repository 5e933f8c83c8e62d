#include "pages/tasks_page.h"

#include "pages/page_choices.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

using namespace tasks_ids;

class TasksRules final : public PageRules {
 public:
  explicit TasksRules(PageContext& context) : context_(context), preview_(PreviewOf(context)) {}

  PageTabs Tabs() override;
  void OnEvent(PageView& view, const PageEvent& event) override {
    if (event.kind == PageEventKind::kChosen) view.Repaint();
  }
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void PaintRoom(Canvas& canvas, int width, int, int) override {
    preview_.DrawTask(canvas, width, 0);
  }

 private:
  PageContext& context_;
  TodayPreview preview_;
};

PageTab IconsTab(TasksSettings& s) {
  const auto offered = TaskMarkerChoices();
  const TwoRowPicker picker{
      {Icon(1222, 1223, IDS_CAL_LEFT_ICON_1, s.TaskTabLeftAlignIcon1, offered),
       Icon(1224, 1225, IDS_CAL_LEFT_ICON_2, s.TaskTabLeftAlignIcon2, offered)},
      {Icons(1226, 1227, IDS_CAL_RIGHT_ICONS, s.TasksRightIcons, offered)}};
  return {
      IDS_PAGE_TAB_ICONS, IconPickers{{picker}}, {kTodayPreviewHeight, PaintedRoom::Place::kBelow}};
}

PageTabs TasksRules::Tabs() {
  TasksSettings& s = context_.settings.tasks;
  return {
      RowTab(
          IDS_TASKS_TAB_SHOWN,
          {
              Check(1200, IDS_TASKS_HIDE_COMPLETED, s.HideCompletedTasks),
              Check(1201, IDS_TASKS_HIDE_PAST_COMPLETED, s.HidePastCompletedTasks),
              Check(1202, IDS_TASKS_HIDE_UNDATED, s.RemoveUndatedTsks),
              List(1203, 1204, IDS_CAL_FUTURE_LIMIT_LABEL, s.TsksLimitFutureDate, FutureLimits()),
          }),
      RowTab(IDS_PAGE_TAB_DISPLAY,
             {
                 List(1205, 1206, IDS_DIVIDER, s.TsksLineBreaker, DividingLines()),
                 List(1207, 1208, IDS_WRAP_TITLES, s.TsksFoldingType, TitleWraps()),
                 Check(1209, IDS_SMART_FOLDING, s.TsksUseSmartFolding),
                 Check(1210, IDS_SHOW_COUNTERS, s.IncludeCountersTsks),
                 Check(1211, IDS_CONFIRM_COMPLETION, s.ConfirmTaskCompleteTsks),
             }),
      RowTab(
          IDS_TASKS_TAB_DATES,
          {
              List(1219, 1220, IDS_CAL_TASK_DATE_LABEL, s.TsksDateFrmt,
                   TaskDates(context_.machine.locale)),
              Check(1221, IDS_TASKS_NO_UNDATED_TEXT, s.RemoveUndatedLeadingStr),
              Check(kCustomDate, IDS_TASKS_CUSTOM_DATE, s.UseCustomDateTsks),
              List(kStructureLabel, kStructure, IDS_TASKS_CUSTOM_STRUCTURE, s.TsksCustomDateStruct,
                   {IDS_TASKS_CUSTOM_START, IDS_TASKS_CUSTOM_DUE, IDS_TASKS_CUSTOM_BOTH}),
              Text(kStartFormatLabel, kStartFormat, IDS_TASKS_START_FORMAT, s.CustomDateFrmtStart),
              Text(kEndFormatLabel, kEndFormat, IDS_TASKS_END_FORMAT, s.CustomDateFrmtEnd),
          }),
      IconsTab(s),
  };
}

std::vector<Enabling> TasksRules::Enabled(const PageView& view) const {
  const bool custom = view.State(kCustomDate).checked;
  return {{kStructureLabel, custom}, {kStructure, custom},      {kStartFormatLabel, custom},
          {kStartFormat, custom},    {kEndFormatLabel, custom}, {kEndFormat, custom}};
}

}  // namespace

std::unique_ptr<PageRules> MakeTasksPage(PageContext& context) {
  return std::make_unique<TasksRules>(context);
}

}  // namespace tidewell
