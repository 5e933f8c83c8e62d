#include "pages/colors_page.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "addons/schemes.h"
#include "pages/page_paint.h"
#include "preview/font_holder.h"
#include "preview/text_drawing.h"
#include "resources/text/text_ids.h"
#include "ui/file_advice.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace colors_ids;

constexpr int kLongestName = 255;
// What divides a path cannot be in a name either.
constexpr const wchar_t* kIllegalInNames = L"\\/:*?\"<>|";
// From the text of each color to its description.
constexpr int kToDescription = IDS_COLOR_SEPARATOR_TIP - IDS_COLOR_SEPARATOR;

// At 96 dots per inch.
constexpr int kRoomHeight = 76;
constexpr int kMargin = 10;
constexpr int kLineTop = kFirstRowTop + 42;  // of what stands below the description
constexpr DesignPlace kRoomyChoose{-50, kLineTop, 40, 20};
constexpr DesignPlace kRoomySwatch{-100, kLineTop, 44, 20};

// A screen without room for descriptions.
struct NarrowPlaces {
  static constexpr DesignPlace kChoose{-48, 4, 44, 20};
  static constexpr DesignPlace kSwatch{4, 4, 44, 20};
  static constexpr DesignPlace kList{4, 28, -8, -26};
  static constexpr DesignPlace kName{4, 4, -66, 20};
  static constexpr DesignPlace kSave{-58, 4, 54, 20};
  static constexpr DesignPlace kSchemes{4, 28, -8, -48};
  static constexpr DesignPlace kApply{2, -46, 65, 20};
  static constexpr DesignPlace kDelete{-52, -46, 51, 20};
};

std::vector<SettingLine> ColorLines(ColorsSettings& s) {
  return {{IDS_COLOR_SEPARATOR, &s.SeperatorLineClr},
          {IDS_COLOR_SHADOW, &s.ShadowFontColor},
          {IDS_COLOR_GENERAL, &s.GeneralFontColor},
          {IDS_COLOR_HIGHLIGHT, &s.HighlightBgClr},
          {IDS_COLOR_HIGHLIGHT_TEXT, &s.HighlightTextClr},
          {IDS_COLOR_TIME_LINES, &s.TimeLinesBgClr},
          {IDS_COLOR_TIME_LINE_ENTRIES, &s.TimeLinesDfltClr},
          {IDS_COLOR_CALENDAR_LINE, &s.ClrBreakingLineClr},
          {IDS_COLOR_MONTH, &s.ClrPopupClrBg},
          {IDS_COLOR_MONTH_TODAY, &s.ClrPopupCurr},
          {IDS_COLOR_MONTH_SELECTED, &s.ClrPopupHighlight},
          {IDS_COLOR_TASKS_LINE, &s.TskBreakingLineClr},
          {IDS_COLOR_FREE, &s.ClrStatusFree},
          {IDS_COLOR_BUSY, &s.ClrStatusBusy},
          {IDS_COLOR_TENTATIVE, &s.ClrStatusTentative},
          {IDS_COLOR_OUT_OF_OFFICE, &s.ClrStatusOutofoffice}};
}

LineLook SwatchOf(const DwordSetting& color) {
  LineLook look;
  look.swatch = color.Value();
  return look;
}

class ColorsRules final : public PageRules {
 public:
  explicit ColorsRules(PageContext& context)
      : context_(context),
        narrow_(IsNarrow(context.scale, context.machine.system.Screen().width)),
        lines_(ColorLines(context.settings.colors)),
        schemes_(context.machine, context.settings, context.categories) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void PaintRoom(Canvas& canvas, int width, int height, int tab) override;

 private:
  PageTab ColorsTab() const;
  PageTab SchemesTab() const;
  // The setting of a line that there is.
  DwordSetting& ColorOf(int line) const {
    return static_cast<DwordSetting&>(*lines_[static_cast<std::size_t>(line)].setting);
  }
  void ShowColors(PageView& view) const;
  void ShowSchemes(PageView& view) const;
  void ChooseColor(PageView& view);
  void SaveScheme(PageView& view);
  void ApplyScheme(PageView& view);
  void DeleteScheme(PageView& view);
  // The selected scheme; null, and the user told, when there is none.
  const std::wstring* SelectedScheme(const PageView& view) const;
  void Say(const std::wstring& text, int captionId) const;
  void Say(int textId, int captionId) const { Say(context_.language.Text(textId), captionId); }
  bool Ask(int questionId, int captionId) const;
  void WriteTip(Canvas& canvas, int textId, int width);

  PageContext& context_;
  bool narrow_;
  std::vector<SettingLine> lines_;
  Schemes schemes_;
  std::vector<std::wstring> files_;  // the lines of the schemes' list
  int color_ = kNoChoice;            // the selected line
  FontHolder font_;
};

PageTabs ColorsRules::Tabs() {
  return {ColorsTab(), SchemesTab()};
}

PageTab ColorsRules::ColorsTab() const {
  const DesignPlace place = narrow_ ? NarrowPlaces::kList : DesignPlace{kMargin, 76, -20, -28};
  const DesignPlace choose = narrow_ ? NarrowPlaces::kChoose : kRoomyChoose;
  ItemList list{kColors, ListLook::kPlain, place, {{kChoose, IDS_COLOR_CHOOSE, choose}}};
  list.lines = lines_;
  return {
      IDS_COLORS_TAB_COLORS, std::move(list), {narrow_ ? NarrowPlaces::kList.top : kRoomHeight}};
}

PageTab ColorsRules::SchemesTab() const {
  ItemList list{kSchemes,
                ListLook::kPlain,
                {kMargin, 76, -20, -54},
                {{kApply, IDS_SCHEME_APPLY, {kMargin, -48, 80, 20}},
                 {kDelete, IDS_SCHEME_DELETE, {100, -48, 80, 20}}}};
  list.fields = {{kName,
                  {kMargin, kLineTop, 130, 20},
                  kLongestName,
                  {kSave, IDS_SCHEME_SAVE, {150, kLineTop, 80, 20}}}};
  list.columnTitle = L"Calendar settings";
  if (narrow_) {
    list.place = NarrowPlaces::kSchemes;
    list.buttons[0].place = NarrowPlaces::kApply;
    list.buttons[1].place = NarrowPlaces::kDelete;
    list.fields[0].place = NarrowPlaces::kName;
    list.fields[0].button.place = NarrowPlaces::kSave;
  }
  return {IDS_COLORS_TAB_SCHEMES, std::move(list), {narrow_ ? 0 : kLineTop}};
}

void ColorsRules::OnBuilt(PageView& view, int tab) {
  if (tab == 0) {
    ShowColors(view);
  } else {
    files_ = schemes_.Names();
    ShowSchemes(view);
  }
}

void ColorsRules::ShowColors(PageView& view) const {
  std::vector<ListLine> lines;
  for (const SettingLine& line : lines_) lines.push_back({line.TextIn(context_.language)});
  view.SetLines(kColors, lines);
  for (int line = 0; line < std::ssize(lines_); ++line) {
    view.SetLook(kColors, line, SwatchOf(ColorOf(line)));
  }
}

void ColorsRules::ShowSchemes(PageView& view) const {
  std::vector<ListLine> lines;
  for (const std::wstring& file : files_) lines.push_back({file});
  view.SetLines(kSchemes, lines);
}

void ColorsRules::OnEvent(PageView& view, const PageEvent& event) {
  if (event.id == kColors) {
    color_ = view.SelectedLine(kColors);
    view.Repaint();
  }
  const bool isActivated = event.kind == PageEventKind::kActivated;
  if (event.id == kChoose || (event.id == kColors && isActivated)) ChooseColor(view);
  if (event.id == kSave) SaveScheme(view);
  if (event.id == kApply || (event.id == kSchemes && isActivated)) ApplyScheme(view);
  if (event.id == kDelete) DeleteScheme(view);
}

std::vector<Enabling> ColorsRules::Enabled(const PageView& view) const {
  return {{kChoose, view.SelectedLine(kColors) != kNoChoice}};
}

void ColorsRules::ChooseColor(PageView& view) {
  if (color_ == kNoChoice || !context_.dialogs) return;
  DwordSetting& setting = ColorOf(color_);
  const auto chosen = context_.dialogs->ChooseColor(setting.Value(), true);
  if (!chosen) return;
  setting.Set(*chosen);
  view.SetLook(kColors, color_, SwatchOf(setting));
  view.Repaint();
}

void ColorsRules::SaveScheme(PageView& view) {
  const std::wstring name = view.State(kName).text.substr(0, kLongestName);
  if (name.empty()) return Say(IDS_SCHEME_NO_NAME, IDS_SCHEME_NO_NAME_CAPTION);
  if (name.find_first_of(kIllegalInNames) != std::wstring::npos) {
    return Say(IDS_FILE_NAME_ILLEGAL, IDS_FILE_NAME_ERROR);
  }
  const FileStatus status = schemes_.Save(name);
  if (status == FileStatus::kInUse) return Say(IDS_SCHEME_TAKEN, IDS_SCHEME_TAKEN_CAPTION);
  if (status != FileStatus::kOk) {
    return Say(WithAdvice(context_.language, IDS_SCHEME_NOT_SAVED, status),
               IDS_SCHEME_NOT_SAVED_CAPTION);
  }
  files_.push_back(name + kSchemeExtension);
  ShowSchemes(view);
  view.SetState(kName, {});
  Say(IDS_SCHEME_SAVED, IDS_SCHEME_SAVED_CAPTION);
}

void ColorsRules::ApplyScheme(PageView& view) {
  const std::wstring* file = SelectedScheme(view);
  if (!file || !Ask(IDS_SCHEME_APPLY_QUESTION, IDS_SCHEME_APPLY_CAPTION)) return;
  switch (schemes_.Apply(*file)) {
    case SchemeResult::kUnreadable:
      return Say(IDS_SCHEME_NOT_OPENED, IDS_SCHEME_NOT_OPENED_CAPTION);
    case SchemeResult::kRefused:
      Say(IDS_SCHEME_REFUSED, IDS_SCHEME_REFUSED_CAPTION);
      // The one to go back to may be new.
      files_ = schemes_.Names();
      return ShowSchemes(view);
    case SchemeResult::kApplied:
      if (context_.endForScheme) context_.endForScheme();
  }
}

void ColorsRules::DeleteScheme(PageView& view) {
  const std::wstring* file = SelectedScheme(view);
  if (!file || !Ask(IDS_SCHEME_DELETE_QUESTION, IDS_SCHEME_DELETE_CAPTION)) return;
  const FileStatus status = schemes_.Remove(*file);
  if (status != FileStatus::kOk && status != FileStatus::kAbsent) {
    return Say(IDS_SCHEME_NOT_DELETED, IDS_SCHEME_DELETE_CAPTION);
  }
  files_.erase(files_.begin() + (file - files_.data()));
  ShowSchemes(view);
}

const std::wstring* ColorsRules::SelectedScheme(const PageView& view) const {
  const auto line = static_cast<std::size_t>(view.SelectedLine(kSchemes));
  if (line < files_.size()) return &files_[line];
  Say(IDS_SCHEME_SELECT, IDS_SCHEME_SELECT_CAPTION);
  return nullptr;
}

void ColorsRules::Say(const std::wstring& text, int captionId) const {
  if (context_.dialogs) context_.dialogs->ShowMessage(text, context_.language.Text(captionId));
}

bool ColorsRules::Ask(int questionId, int captionId) const {
  const Language& language = context_.language;
  return context_.dialogs &&
         context_.dialogs->Ask(language.Text(questionId), language.Text(captionId), false);
}

void ColorsRules::PaintRoom(Canvas& canvas, int width, int height, int tab) {
  if (tab == 1) return WriteTip(canvas, IDS_SCHEMES_TIP, width);
  if (color_ == kNoChoice) return;
  const SettingLine& line = lines_[static_cast<std::size_t>(color_)];
  if (!narrow_) WriteTip(canvas, line.textId + kToDescription, width);
  const ScreenScale& scale = context_.scale;
  const Rect swatch = PlaceOf(scale, width, height, narrow_ ? NarrowPlaces::kSwatch : kRoomySwatch);
  DrawSwatch(canvas, swatch, ColorOf(color_).Value(), context_.language.Text(IDS_COLOR_AUTOMATIC),
             font_.Get(canvas, PageFont(scale)), scale);
}

void ColorsRules::WriteTip(Canvas& canvas, int textId, int width) {
  const ScreenScale& scale = context_.scale;
  const int left = scale.ScaleX(kMargin);
  const Rect strip{left, scale.ScaleX(kFirstRowTop), width - 2 * left,
                   scale.ScaleY(kLineTop - kFirstRowTop)};
  WriteWrapped(canvas, strip, context_.language.Text(textId), {font_.Get(canvas, PageFont(scale))},
               DrawPass::kDraw);
}

}  // namespace

std::unique_ptr<PageRules> MakeColorsPage(PageContext& context) {
  return std::make_unique<ColorsRules>(context);
}

}  // namespace tidewell
