#include "pages/tabs_page.h"

#include <algorithm>

#include "addons/today_plugins.h"
#include "resources/text/text_ids.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace tabs_ids;

constexpr int kOrderTab = 1;
constexpr std::int32_t kFirstShownOrder = 2;  // the calendar's tab, which is never shown, has 1

// The same in every language.
constexpr const wchar_t* kNothingSelected =
    L"No Today screen plugin is selecetd. Please select a Today screen plugin from the selection "
    L"combo-box.";
constexpr const wchar_t* kNothingSelectedCaption = L"Selection Missing";

class TabsRules final : public PageRules {
 public:
  explicit TabsRules(PageContext& context)
      : context_(context), plugins_(context.machine.registry) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override {
    if (tab == kOrderTab) view.SetLines(kTabList, Lines());
  }
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void Store(const PageView& view) override;

 private:
  std::wstring Text(int id) const { return context_.language.Text(id); }
  TabList& TheTabs() const { return context_.settings.tabs; }
  std::vector<ListLine> Lines();
  ListLine LineOf(TabEntry& entry);
  TabEntry& EntryOf(const ListLine& line) const;
  // Null when none is selected.
  TabEntry* SelectedEntry(const PageView& view) const;
  void Add(PageView& view);
  void Remove(PageView& view);
  std::optional<std::wstring> PickPlugin();
  Verdict Confirm(const std::wstring* name, UserDialogs& over);
  bool IsHosted(const std::wstring& name) const;

  PageContext& context_;
  TodayPlugins plugins_;
  std::vector<TabEntry*> entries_;  // by the data of their lines
};

PageTab OrderTab(const TabSettings& s) {
  return {IDS_TABS_TAB_ORDER,
          ItemList{kTabList,
                   ListLook::kTicked,
                   {10, 8, -100, -28},
                   {{kUp, IDS_MOVE_UP, {-85, 8, 75, 20}},
                    {kDown, IDS_MOVE_DOWN, {-85, 32, 75, 20}},
                    {kAdd, IDS_TABS_ADD, {-85, 62, 75, 20}},
                    {kRemove, IDS_TABS_REMOVE, {-85, 86, 75, 20}}},
                   {},
                   {&s.TasksTabEnabled, &s.NotesTabEnabled, &s.ContactsTabEnabled,
                    &s.MailTabEnabled, &s.SEventsTabEnabled, &s.TasksTabOrder, &s.NotesTabOrder,
                    &s.ContactsTabOrder, &s.MailTabOrder, &s.SEventsTabOrder},
                   {},
                   {},
                   L"Calendar settings"}};
}

PageTabs TabsRules::Tabs() {
  TabSettings& s = context_.settings.tabSettings;
  return {
      RowTab(IDS_PAGE_TAB_GENERAL,
             {
                 List(1200, 1201, IDS_TABS_POSITION, s.TabsPosition,
                      {IDS_TABS_POSITION_LEFT, IDS_TABS_POSITION_TOP, IDS_TABS_POSITION_RIGHT,
                       IDS_TABS_POSITION_BOTTOM}),
                 List(1202, 1203, IDS_TABS_STYLE, s.TabsStyle,
                      {IDS_TABS_STYLE_TEXT, IDS_TABS_STYLE_ICONS}),
                 List(1204, kGestures, IDS_TABS_GESTURES, s.TabGestures,
                      {IDS_TABS_GESTURES_OFF, IDS_TABS_GESTURES_ON}),
                 List(kEffectLabel, kEffect, IDS_TABS_EFFECT, s.TabGesturEffect,
                      {IDS_TABS_EFFECT_NONE, IDS_TABS_EFFECT_SLIDE}),
             }),
      OrderTab(s),
      RowTab(IDS_TABS_TAB_DEFAULT,
             {
                 List(1213, 1214, IDS_TABS_TIME_OUT, s.DfltTabTimeOut,
                      {IDS_NONE_SELECTED, IDS_TABS_TIME_OUT_1_MINUTE, IDS_TABS_TIME_OUT_2_MINUTES,
                       IDS_TABS_TIME_OUT_5_MINUTES, IDS_TABS_TIME_OUT_10_MINUTES,
                       IDS_TABS_TIME_OUT_30_MINUTES, IDS_TABS_TIME_OUT_1_HOUR}),
                 List(1215, 1216, IDS_TABS_DEFAULT_TAB, s.DfltTab,
                      {IDS_TAB_CALENDAR, IDS_TAB_TASKS, IDS_TAB_NOTES, IDS_TAB_CONTACTS,
                       IDS_TAB_MAIL, IDS_TAB_SPECIAL_EVENTS}),
                 Check(1217, IDS_TABS_DEFAULT_AT_START, s.DfltTabOnStartup),
             }),
  };
}

ListLine TabsRules::LineOf(TabEntry& entry) {
  entries_.push_back(&entry);
  return {entry.caption, std::ssize(entries_) - 1, entry.enabled == 1};
}

TabEntry& TabsRules::EntryOf(const ListLine& line) const {
  return *entries_[static_cast<std::size_t>(line.data)];
}

TabEntry* TabsRules::SelectedEntry(const PageView& view) const {
  const int line = view.SelectedLine(kTabList);
  return line == kNoChoice ? nullptr : &EntryOf(view.Line(kTabList, line));
}

std::vector<ListLine> TabsRules::Lines() {
  std::vector<ListLine> lines;
  for (TabEntry& entry : TheTabs()) {
    if (entry.type != TabType::kCalendar) lines.push_back(LineOf(entry));
  }
  return lines;
}

void TabsRules::OnEvent(PageView& view, const PageEvent& event) {
  if (event.kind != PageEventKind::kClicked) return;
  switch (event.id) {
    case kUp:
    case kDown:
      view.MoveLine(kTabList, event.id == kUp);
      break;
    case kAdd:
      Add(view);
      break;
    case kRemove:
      Remove(view);
      break;
  }
}

std::vector<Enabling> TabsRules::Enabled(const PageView& view) const {
  const bool gestures = view.State(kGestures).selection != 0;
  const TabEntry* selected = SelectedEntry(view);
  return {{kEffectLabel, gestures},
          {kEffect, gestures},
          {kRemove, selected && selected->type == TabType::kHosted}};
}

void TabsRules::Add(PageView& view) {
  const auto name = PickPlugin();
  if (!name) return;
  if (IsHosted(*name)) {
    context_.dialogs->ShowMessage(Text(IDS_PLUGIN_ALREADY_HOSTED),
                                  Text(IDS_PLUGIN_ALREADY_HOSTED_CAPTION));
    return;
  }
  TheTabs().push_back(
      {TabType::kHosted, kHostedOrder, 1, *name, plugins_.LibraryOf(*name), L"", L""});
  std::vector<ListLine> lines = view.Lines(kTabList);
  lines.push_back(LineOf(TheTabs().back()));
  view.SetLines(kTabList, lines);
  view.SelectLine(kTabList, static_cast<int>(lines.size()) - 1);
}

std::optional<std::wstring> TabsRules::PickPlugin() {
  if (!context_.dialogs) return std::nullopt;
  LineRequest request{Text(IDS_PLUGIN_DISABLE_CAPTION),
                      Text(IDS_PLUGIN_PICK),
                      Text(IDS_PLUGIN_LABEL),
                      plugins_.Hostable(),
                      {}};
  request.confirm = [&](std::optional<std::size_t> line, UserDialogs& over) {
    return Confirm(line ? &request.lines[*line] : nullptr, over);
  };
  const auto line = context_.dialogs->ChooseLine(request);
  if (!line) return std::nullopt;
  return request.lines[*line];
}

// A plug-in that a tab hosts is not to be on the Today screen as well.
Verdict TabsRules::Confirm(const std::wstring* name, UserDialogs& over) {
  if (!name) {
    over.ShowMessage(kNothingSelected, kNothingSelectedCaption);
    return Verdict::kStay;
  }
  if (!plugins_.IsEnabled(*name)) return Verdict::kTake;
  if (!over.Ask(Text(IDS_PLUGIN_DISABLE_QUESTION), Text(IDS_PLUGIN_DISABLE_CAPTION), true)) {
    return Verdict::kCancel;
  }
  plugins_.Disable(*name);
  context_.machine.system.RefreshTodayScreen();
  return Verdict::kTake;
}

bool TabsRules::IsHosted(const std::wstring& name) const {
  return std::ranges::any_of(TheTabs(), [&](const TabEntry& entry) {
    return entry.type == TabType::kHosted && entry.caption == name;
  });
}

void TabsRules::Remove(PageView& view) {
  const int line = view.SelectedLine(kTabList);
  const TabEntry* removed = SelectedEntry(view);
  if (!removed || removed->type != TabType::kHosted) return;
  std::vector<ListLine> lines = view.Lines(kTabList);
  lines.erase(lines.begin() + line);
  view.SetLines(kTabList, lines);
  TheTabs().remove_if([&](const TabEntry& entry) { return &entry == removed; });
}

void TabsRules::Store(const PageView& view) {
  std::int32_t order = kFirstShownOrder;
  for (const ListLine& line : view.Lines(kTabList)) {
    TabEntry& entry = EntryOf(line);
    entry.order = order++;
    entry.enabled = line.ticked ? 1 : 0;
  }
  SortByOrder(TheTabs());
}

}  // namespace

std::unique_ptr<PageRules> MakeTabsPage(PageContext& context) {
  return std::make_unique<TabsRules>(context);
}

}  // namespace tidewell
