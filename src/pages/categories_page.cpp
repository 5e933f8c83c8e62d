#include "pages/categories_page.h"

#include <algorithm>

#include "categories/filters_file.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace categories_ids;

enum : int { kCategoriesTab, kFiltersTab, kMembersTab };

constexpr std::size_t kLongestTitle = 127;
constexpr DesignPlace kListPlace{10, 4, -20, -58};  // below the rows, above the buttons
constexpr DesignPlace kWholeListPlace{10, 4, -20, -28};

// Where there is no language library: a refusal needs words.
constexpr const wchar_t* kTitleRefused =
    L"A title has 1 to 127 Latin characters and no quotation marks.";

// What an item of a filter is; the Today item hides the others.
constexpr struct {
  int textId;
  std::uint32_t sensitivity;
} kSensitivities[] = {{IDS_FILTER_ALL_ITEMS, 0}, {IDS_FILTER_PUBLIC, 1}, {IDS_FILTER_PRIVATE, 2}};

// A title must be the same when the filters file is read again.
bool IsKept(const std::wstring& title) {
  FilterSet filters = DefaultFilters();
  filters[0].title = title;
  const auto read = ReadFilters(BytesOf(FormatFilters(filters)));
  return read && *read == filters;
}

bool IsTitle(const std::wstring& title) {
  return !title.empty() && title.size() <= kLongestTitle &&
         title.find_first_of(L"\"\r\n") == std::wstring::npos && IsKept(title);
}

class CategoriesRules final : public PageRules {
 public:
  explicit CategoriesRules(PageContext& context) : context_(context) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override;
  void OnShown(PageView& view, int tab) override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;

 private:
  std::wstring Text(int id) const { return context_.language.Text(id); }
  std::span<const std::unique_ptr<CategoryRecord>> Categories() const {
    return context_.categories.Categories();
  }
  PageTab CategoriesTab() const;
  PageTab FiltersTab() const;
  PageTab MembersTab() const;
  // Null when none is selected.
  CategoryRecord* SelectedCategory(const PageView& view) const;
  FilterRecord* SelectedFilter(const PageView& view) const;
  std::uint32_t MemberBit(const PageView& view) const;
  void ShowCategories(PageView& view) const;
  void ShowColor(PageView& view, int line) const;
  void ShowFilters(PageView& view) const;
  void ShowFilter(PageView& view) const;
  void ShowFilterChoices(PageView& view) const;
  void ShowMembers(PageView& view) const;
  void ChooseColor(PageView& view) const;
  void EnterTitle(PageView& view) const;
  void Reset(PageView& view) const;
  void TakeTicks(PageView& view, const PageEvent& event) const;
  void TakeFilter(const PageView& view) const;
  void TakeMember(const PageView& view, int line) const;

  PageContext& context_;
};

PageTabs CategoriesRules::Tabs() {
  return {CategoriesTab(), FiltersTab(), MembersTab()};
}

PageTab CategoriesRules::CategoriesTab() const {
  StringSetting& folder = context_.settings.categories.AdditionalIconsFolder;
  const Row path =
      Path(1200, 1201, 1202, 1203, IDS_CATEGORIES_ICONS_FOLDER, folder, {L"Select Icons Folder"});
  if (Categories().empty()) {
    return RowTab(IDS_CATEGORIES_TAB, {path, Notice(1204, IDS_CATEGORIES_NONE)});
  }
  return {IDS_CATEGORIES_TAB,
          ItemList{.listId = kCategoryList,
                   .look = ListLook::kCategories,
                   .place = kListPlace,
                   .buttons = {{kColor, IDS_CATEGORIES_COLOR, {-95, -53, 85, 20}}},
                   .rows = {{path}}}};
}

Choices Sensitivities() {
  Choices choices;
  for (const auto& each : kSensitivities) choices.emplace_back(L"", each.textId, each.sensitivity);
  return choices;
}

PageTab CategoriesRules::FiltersTab() const {
  return {IDS_EVENTS_TAB_FILTERS,
          ItemList{.listId = kFilterList,
                   .look = ListLook::kTicked,
                   .place = kListPlace,
                   .buttons = {{kTitle, IDS_FILTER_TITLE_KEY, {-190, -53, 85, 20}},
                               {kReset, IDS_FILTER_RESET, {-95, -53, 85, 20}}},
                   .rows = {{Selector(1207, kSensitivity, IDS_FILTER_SENSITIVITY, Sensitivities()),
                             CheckByRules(kUncategorized, IDS_FILTER_UNCATEGORIZED)}}}};
}

PageTab CategoriesRules::MembersTab() const {
  if (Categories().empty()) {
    return RowTab(IDS_CATEGORIES_TAB_MEMBERS, {Notice(1213, IDS_CATEGORIES_NONE)});
  }
  return {IDS_CATEGORIES_TAB_MEMBERS,
          ItemList{.listId = kMemberList,
                   .look = ListLook::kTicked,
                   .place = kWholeListPlace,
                   .rows = {{Selector(1213, kFilter, IDS_FILTER, {})}}}};
}

void CategoriesRules::OnBuilt(PageView& view, int tab) {
  if (tab == kCategoriesTab) ShowCategories(view);
  if (tab == kFiltersTab) ShowFilters(view);
}

// The filters may have other titles since.
void CategoriesRules::OnShown(PageView& view, int tab) {
  if (tab != kMembersTab) return;
  ShowFilterChoices(view);
  ShowMembers(view);
}

void CategoriesRules::OnEvent(PageView& view, const PageEvent& event) {
  switch (event.kind) {
    case PageEventKind::kClicked:
    case PageEventKind::kActivated:
      if (event.id == kColor || event.id == kCategoryList) ChooseColor(view);
      if (event.id == kTitle || event.id == kFilterList) EnterTitle(view);
      if (event.id == kReset) Reset(view);
      if (event.id == kUncategorized) TakeFilter(view);
      break;
    // A line that Escape leaves in the box is never decided on.
    case PageEventKind::kChanged:
      if (event.id == kSensitivity) TakeFilter(view);
      if (event.id == kFilter) ShowMembers(view);
      break;
    case PageEventKind::kSelected:
      if (event.id == kFilterList) ShowFilter(view);
      break;
    case PageEventKind::kTicked:
      TakeTicks(view, event);
      break;
    case PageEventKind::kChosen:
    case PageEventKind::kEdited:
    case PageEventKind::kDeselected:
      break;
  }
}

std::vector<Enabling> CategoriesRules::Enabled(const PageView& view) const {
  const bool isFilter = SelectedFilter(view) != nullptr;
  return {{kColor, SelectedCategory(view) != nullptr},
          {1207, isFilter},
          {kSensitivity, isFilter},
          {kUncategorized, isFilter},
          {kTitle, isFilter}};
}

CategoryRecord* CategoriesRules::SelectedCategory(const PageView& view) const {
  const int line = Categories().empty() ? kNoChoice : view.SelectedLine(kCategoryList);
  return line == kNoChoice ? nullptr : Categories()[static_cast<std::size_t>(line)].get();
}

FilterRecord* CategoriesRules::SelectedFilter(const PageView& view) const {
  const int line = view.SelectedLine(kFilterList);
  return line == kNoChoice ? nullptr : context_.categories.FindFilter(line + 1);
}

void CategoriesRules::ShowCategories(PageView& view) const {
  std::vector<ListLine> lines;
  for (const auto& category : Categories()) {
    ListLine& line = lines.emplace_back();
    line.text = category->name;
    line.icon = category->bitmap.get();
  }
  view.SetLines(kCategoryList, lines);
  for (int line = 0; line < std::ssize(lines); ++line) ShowColor(view, line);
}

// A category without a color has no swatch.
void CategoriesRules::ShowColor(PageView& view, int line) const {
  LineLook look;
  const Color color = Categories()[static_cast<std::size_t>(line)]->color;
  if (color != kNoColor) look.swatch = color;
  view.SetLook(kCategoryList, line, look);
}

// The selected one stays.
void CategoriesRules::ShowFilters(PageView& view) const {
  std::vector<ListLine> lines;
  for (const FilterRecord& filter : context_.categories.Filters()) {
    lines.push_back({filter.title, 0, filter.visible});
  }
  const int selected = view.SelectedLine(kFilterList);
  view.SetLines(kFilterList, lines);
  view.SelectLine(kFilterList, selected);
}

// A sensitivity that no line stands for has one of its own as long as its filter is selected.
void CategoriesRules::ShowFilter(PageView& view) const {
  const FilterRecord* filter = SelectedFilter(view);
  if (!filter) return;
  Choices choices = Sensitivities();
  const auto present = static_cast<std::uint32_t>(filter->sensitivity);
  if (present >= choices.size()) choices.emplace_back(FormatDecimal(filter->sensitivity), present);
  view.SetChoices(kSensitivity, choices);
  const std::size_t line = std::min<std::size_t>(present, choices.size() - 1);
  view.SetState(kSensitivity, ControlState::OfLine(static_cast<int>(line)));
  ControlState box;
  box.checked = filter->includeUncategorized;
  view.SetState(kUncategorized, box);
}

void CategoriesRules::ShowFilterChoices(PageView& view) const {
  Choices choices;
  for (const FilterRecord& filter : context_.categories.Filters()) {
    choices.emplace_back(filter.title);
  }
  const int present = std::max(view.State(kFilter).selection, 0);
  view.SetChoices(kFilter, choices);
  view.SetState(kFilter, ControlState::OfLine(present));
}

// The bit of the filter whose members are shown.
std::uint32_t CategoriesRules::MemberBit(const PageView& view) const {
  const int filter = view.State(kFilter).selection;
  return filter == kNoChoice ? 0 : 1u << filter;
}

void CategoriesRules::ShowMembers(PageView& view) const {
  const std::uint32_t bit = MemberBit(view);
  std::vector<ListLine> lines;
  for (const auto& category : Categories()) {
    lines.push_back({category->name, 0, (category->filterFlags & bit) != 0});
  }
  view.SetLines(kMemberList, lines);
}

void CategoriesRules::ChooseColor(PageView& view) const {
  CategoryRecord* category = SelectedCategory(view);
  if (!category || !context_.dialogs) return;
  const auto color = context_.dialogs->ChooseColor(category->color, true);
  if (!color) return;
  category->color = *color;
  ShowColor(view, view.SelectedLine(kCategoryList));
}

void CategoriesRules::EnterTitle(PageView& view) const {
  FilterRecord* filter = SelectedFilter(view);
  if (!filter || !context_.dialogs) return;
  const auto refusal = [this](const std::wstring& title) {
    return IsTitle(title) ? std::wstring()
                          : context_.language.Text(IDS_FILTER_TITLE_REFUSED, kTitleRefused);
  };
  const auto title =
      context_.dialogs->EnterText({Text(IDS_FILTER), Text(IDS_FILTER_TITLE), filter->title,
                                   kLongestTitle, refusal, Text(IDS_FILTER_TITLE_REFUSED_CAPTION)});
  if (!title) return;
  filter->title = *title;
  ShowFilters(view);
}

void CategoriesRules::Reset(PageView& view) const {
  if (!context_.dialogs) return;
  if (!context_.dialogs->Ask(Text(IDS_FILTER_RESET_QUESTION), Text(IDS_FILTER_RESET_CAPTION),
                             false)) {
    return;
  }
  context_.categories.ResetFilters();
  ShowFilters(view);
  ShowFilter(view);
}

void CategoriesRules::TakeTicks(PageView& view, const PageEvent& event) const {
  if (event.id == kFilterList) {
    FilterRecord& filter = context_.categories.Filters()[static_cast<std::size_t>(event.line)];
    filter.visible = view.Line(kFilterList, event.line).ticked;
  } else if (event.id == kMemberList) {
    TakeMember(view, event.line);
  }
}

void CategoriesRules::TakeFilter(const PageView& view) const {
  FilterRecord* filter = SelectedFilter(view);
  if (!filter) return;
  filter->sensitivity = static_cast<std::int32_t>(view.State(kSensitivity).data);
  filter->includeUncategorized = view.State(kUncategorized).checked;
}

void CategoriesRules::TakeMember(const PageView& view, int line) const {
  const std::uint32_t bit = MemberBit(view);
  std::uint32_t& flags = Categories()[static_cast<std::size_t>(line)]->filterFlags;
  flags = view.Line(kMemberList, line).ticked ? flags | bit : flags & ~bit;
}

}  // namespace

std::unique_ptr<PageRules> MakeCategoriesPage(PageContext& context) {
  return std::make_unique<CategoriesRules>(context);
}

}  // namespace tidewell
