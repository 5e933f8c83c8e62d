#include "pages/fonts_page.h"

#include <algorithm>
#include <string>
#include <vector>

#include "pages/page_paint.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace fonts_ids;

constexpr int kListTab = 1;
constexpr const wchar_t* kUsualFace = L"Tahoma";
constexpr std::uint8_t kClearTypeQuality = 5;
// A paler text is shown on a dark line.
constexpr double kLeastContrast = 2;
constexpr Color kDarkPaper = Rgb(64, 64, 72);

// What the preview shows in a font.
enum class Sample : std::uint8_t { kAppointment, kTask, kName };

struct FontLine {
  int viewId;  // the tab of the Today item that it is seen in; 0 for all
  int nameId;
  FontSetting* setting;
  Sample sample = Sample::kName;

  SettingLine Line() const { return {nameId, setting, viewId}; }
};

std::vector<FontLine> CalendarFonts(FontsSettings& s) {
  constexpr int kView = IDS_TAB_CALENDAR;
  constexpr Sample kAppointment = Sample::kAppointment;
  constexpr Sample kTask = Sample::kTask;
  return {{kView, IDS_FONT_TITLES, &s.FontCalDayTitles},
          {kView, IDS_FONT_BUSY, &s.FontCalApptBusy, kAppointment},
          {kView, IDS_FONT_FREE, &s.FontCalApptFree, kAppointment},
          {kView, IDS_FONT_TENTATIVE, &s.FontCalTentative, kAppointment},
          {kView, IDS_FONT_OUT_OF_OFFICE, &s.FontCalApptOutOfOffice, kAppointment},
          {kView, IDS_FONT_PAST, &s.FontCalPast, kAppointment},
          {kView, IDS_FONT_COMPLETED, &s.FontCalCompleted, kAppointment},
          {kView, IDS_FONT_TASKS, &s.FontCalTasks, kTask},
          {kView, IDS_FONT_TASKS_OVERDUE, &s.FontCalTasksOverdue, kTask},
          {kView, IDS_FONT_TASKS_FUTURE, &s.FontCalTasksFuture, kTask},
          {kView, IDS_FONT_TASKS_COMPLETED, &s.FontCalTasksCompleted, kTask},
          {kView, IDS_FONT_TASKS_UNDATED, &s.FontCalTasksUndated, kTask},
          {kView, IDS_FONT_NEW_MAIL, &s.FontMailUnread},
          {kView, IDS_FONT_NO_NEW_MAIL, &s.FontMailRead}};
}

std::vector<FontLine> OtherFonts(FontsSettings& s) {
  constexpr Sample kTask = Sample::kTask;
  constexpr int kEvents = IDS_TAB_SPECIAL_EVENTS;
  return {{IDS_TAB_TASKS, IDS_FONT_TITLES, &s.FontTskGroupingTtls},
          {IDS_TAB_TASKS, IDS_FONT_OVERDUE, &s.FontTskOverdue, kTask},
          {IDS_TAB_TASKS, IDS_FONT_DUE_TODAY, &s.FontTskDueToday, kTask},
          {IDS_TAB_TASKS, IDS_FONT_DUE_LATER, &s.FontTskFutureDue, kTask},
          {IDS_TAB_TASKS, IDS_FONT_UNDATED, &s.FontTskNoDue, kTask},
          {IDS_TAB_NOTES, IDS_FONT_TITLES, &s.FontNoteTitles},
          {IDS_TAB_NOTES, IDS_FONT_ITEMS, &s.FontNoteItems},
          {IDS_TAB_CONTACTS, IDS_FONT_TITLES, &s.FontContactTitles},
          {IDS_TAB_CONTACTS, IDS_FONT_ITEMS, &s.FontContactItems},
          {IDS_TAB_MAIL, IDS_FONT_TITLES, &s.FontMsgsTitles},
          {IDS_TAB_MAIL, IDS_FONT_UNREAD, &s.FontMsgsUnread},
          {IDS_TAB_MAIL, IDS_FONT_READ, &s.FontMsgsRead},
          {kEvents, IDS_FONT_TITLES, &s.FontSEGroupingTtls},
          {kEvents, IDS_FONT_ITEMS, &s.FontSEGeneral},
          {kEvents, IDS_FONT_EVENTS_FILTER_1, &s.FontSEFilter1},
          {kEvents, IDS_FONT_EVENTS_FILTER_2, &s.FontSEFilter2},
          {kEvents, IDS_FONT_EVENTS_FILTER_3, &s.FontSEFilter3},
          {kEvents, IDS_FONT_EVENTS_FILTER_4, &s.FontSEFilter4}};
}

std::vector<FontLine> AllFonts(FontsSettings& s) {
  std::vector<FontLine> lines = {{0, IDS_FONT_GENERAL, &s.FontGeneral}};
  for (const auto& more : {CalendarFonts(s), OtherFonts(s)}) {
    lines.insert(lines.end(), more.begin(), more.end());
  }
  return lines;
}

// "Tahoma" and the stored face first, whether they are installed or not.
std::vector<std::wstring> Faces(const Machine& machine, const std::wstring& stored) {
  std::vector<std::wstring> installed = machine.system.FontFaces();
  std::ranges::sort(installed, [&](const std::wstring& left, const std::wstring& right) {
    return machine.locale.CompareIgnoringCase(left, right) < 0;
  });
  std::vector<std::wstring> faces = {kUsualFace, stored};
  faces.insert(faces.end(), installed.begin(), installed.end());
  std::vector<std::wstring> each;
  for (const std::wstring& face : faces) {
    const auto isSame = [&](const std::wstring& other) { return EqualIgnoringCase(other, face); };
    if (!face.empty() && std::ranges::none_of(each, isSame)) each.push_back(face);
  }
  return each;
}

class FontsRules final : public PageRules {
 public:
  explicit FontsRules(PageContext& context)
      : context_(context),
        narrow_(IsNarrow(context.scale, context.machine.system.Screen().width)),
        lines_(AllFonts(context.settings.fonts)),
        preview_(PreviewOf(context)) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override;
  void OnShown(PageView& view, int tab) override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void PaintRoom(Canvas& canvas, int width, int height, int tab) override;
  void Store(const PageView& view) override { StoreFace(view.State(kFace)); }

 private:
  FontsSettings& Settings() const { return context_.settings.fonts; }
  PageTab GeneralTab() const;
  PageTab KindsTab() const;
  void ShowFaces(PageView& view) const;
  void StoreFace(const ControlState& state) const;
  void StoreGeneral(const PageView& view, int id) const;
  // As it is drawn with the face and the quality that are chosen now.
  FontAndColor FontOf(const FontSetting& setting) const;
  LineLook LookOf(const FontSetting& setting) const;
  void ShowLooks(PageView& view) const;
  void ChangeFont(PageView& view);

  PageContext& context_;
  bool narrow_;
  std::vector<FontLine> lines_;
  int selected_ = kNoChoice;
  TodayPreview preview_;
};

PageTabs FontsRules::Tabs() {
  return {GeneralTab(), KindsTab()};
}

PageTab FontsRules::GeneralTab() const {
  FontsSettings& s = Settings();
  return RowTab(IDS_PAGE_TAB_GENERAL,
                {Number(1200, 1201, IDS_FONTS_SIZE, s.FontGnrlSize, Numbers(8, 40, 1)),
                 Number(1202, 1203, IDS_FONTS_TITLES_SIZE, s.FontGnrlTitlesSize, Numbers(8, 40, 1)),
                 FilledByRules(1204, kFace, IDS_FONTS_FACE, s.FontFaceToUse),
                 List(1206, kShadow, IDS_FONTS_SHADOW, s.UseShadowColor,
                      {IDS_FONTS_SHADOW_NONE, IDS_FONTS_SHADOW_RIGHT, IDS_FONTS_SHADOW_DOWN_RIGHT,
                       IDS_FONTS_SHADOW_DOWN, IDS_FONTS_SHADOW_OUTLINE}),
                 Check(kClearType, IDS_FONTS_CLEAR_TYPE, s.ForceClearType),
                 Check(kOwnFonts, IDS_FONTS_OWN, s.FontGnrlUseAdvncd)});
}

// A screen that is narrow is low as well: it has no room for the preview.
PageTab FontsRules::KindsTab() const {
  ItemList list{kFonts,
                ListLook::kPlain,
                {10, kTodayPreviewHeight + kFirstRowTop, -20, -54},
                {{kChange, IDS_FONTS_CHANGE, {10, -48, 80, 20}}}};
  if (narrow_) {
    list.place = {4, 4, -8, -48};
    list.buttons[0].place = {4, -46, 80, 20};
  }
  for (const FontLine& line : lines_) list.lines.push_back(line.Line());
  return {IDS_FONTS_TAB_FONTS, std::move(list), {narrow_ ? 0 : kTodayPreviewHeight}};
}

void FontsRules::OnBuilt(PageView& view, int tab) {
  if (tab != kListTab) return ShowFaces(view);
  std::vector<ListLine> lines;
  for (const FontLine& line : lines_) {
    lines.push_back({line.Line().TextIn(context_.language)});
  }
  view.SetLines(kFonts, lines);
  ShowLooks(view);
}

void FontsRules::ShowFaces(PageView& view) const {
  const std::wstring& stored = Settings().FontFaceToUse.Value();
  const std::vector<std::wstring> faces = Faces(context_.machine, stored);
  Choices choices;
  int chosen = kNoChoice;
  for (const std::wstring& face : faces) {
    if (EqualIgnoringCase(face, stored)) chosen = static_cast<int>(choices.size());
    choices.emplace_back(face);
  }
  view.SetChoices(kFace, choices);
  ControlState state = ControlState::OfText(stored);
  state.selection = chosen;
  view.SetState(kFace, state);
}

// Other values may have been chosen on the other tab.
void FontsRules::OnShown(PageView& view, int tab) {
  if (tab == kListTab) ShowLooks(view);
}

void FontsRules::ShowLooks(PageView& view) const {
  for (int line = 0; line < std::ssize(lines_); ++line) {
    view.SetLook(kFonts, line, LookOf(*lines_[static_cast<std::size_t>(line)].setting));
  }
}

FontAndColor FontsRules::FontOf(const FontSetting& setting) const {
  FontAndColor drawn{setting.Font(), setting.Color()};
  drawn.font.faceName = Settings().FontFaceToUse.Value();
  drawn.font.quality = Settings().ForceClearType.Value() ? kClearTypeQuality : 0;
  if (drawn.color == kNoColor) drawn.color = ReadTodayLook(context_.settings).general.color;
  return drawn;
}

// In the size of the list, so that all lines can be read.
LineLook FontsRules::LookOf(const FontSetting& setting) const {
  const FontAndColor drawn = FontOf(setting);
  LineLook look;
  look.font = drawn.font;
  look.font.height = PageFont(context_.scale).height;
  look.ink = drawn.color;
  if (Contrast(look.ink, kWhite) < kLeastContrast) look.paper = kDarkPaper;
  return look;
}

void FontsRules::OnEvent(PageView& view, const PageEvent& event) {
  if (event.id < kFonts) return StoreGeneral(view, event.id);
  if (event.id == kFonts) {
    selected_ = view.SelectedLine(kFonts);
    view.Repaint();
  }
  if (event.id == kChange || event.kind == PageEventKind::kActivated) ChangeFont(view);
}

// At once, for the other tab shows it.
void FontsRules::StoreGeneral(const PageView& view, int id) const {
  if (id == kFace) return StoreFace(view.State(kFace));
  const PageTab tab = GeneralTab();
  for (const Row* row : tab.Rows()) {
    if (row->controlId == id) tidewell::Store(*row, view.State(id));
  }
}

// A list that was not made, or where none is chosen, has no text.
void FontsRules::StoreFace(const ControlState& state) const {
  StringSetting& face = Settings().FontFaceToUse;
  if (!state.text.empty() && !EqualIgnoringCase(state.text, face.Value())) face.Set(state.text);
}

std::vector<Enabling> FontsRules::Enabled(const PageView& view) const {
  const bool hasOwn = view.State(kOwnFonts).checked;
  return {{kFonts, hasOwn}, {kChange, hasOwn && view.SelectedLine(kFonts) != kNoChoice}};
}

// A color that was chosen before the dialog was cancelled stays.
void FontsRules::ChangeFont(PageView& view) {
  if (selected_ == kNoChoice || !context_.dialogs) return;
  FontSetting& setting = *lines_[static_cast<std::size_t>(selected_)].setting;
  LogFont font = FontOf(setting).font;
  Color color = setting.Color();
  if (context_.dialogs->ChooseFont(font, color)) {
    setting.Set(font, color);
  } else if (color != setting.Color()) {
    setting.color.Set(color);
  }
  view.SetLook(kFonts, selected_, LookOf(setting));
  view.Repaint();
}

void FontsRules::PaintRoom(Canvas& canvas, int width, int, int) {
  const FontLine& line = lines_[static_cast<std::size_t>(std::max(selected_, 0))];
  const bool hasOwn = Settings().FontGnrlUseAdvncd.Value() == 1;
  const FontAndColor font =
      hasOwn ? FontOf(*line.setting) : ReadTodayLook(context_.settings).general;
  switch (line.sample) {
    case Sample::kAppointment:
      return preview_.DrawAppointment(canvas, width, 0, &font);
    case Sample::kTask:
      return preview_.DrawTask(canvas, width, 0, &font);
    case Sample::kName:
      return preview_.DrawText(canvas, line.Line().TextIn(context_.language), font, width, 0);
  }
}

}  // namespace

std::unique_ptr<PageRules> MakeFontsPage(PageContext& context) {
  return std::make_unique<FontsRules>(context);
}

}  // namespace tidewell
