#include "pages/notes_page.h"

#include <optional>

#include "addons/note_folders.h"
#include "pages/page_choices.h"
#include "pages/search_bar.h"
#include "resources/text/text_ids.h"
#include "settings/calendar_programs.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace notes_ids;

enum : int { kGeneralTab, kDisplayTab, kTypesTab, kFoldersTab };

// A box shows the lowest of its bits and stores them all: a program of notes has two kinds of
// files.
constexpr struct {
  int boxId;
  int textId;
  std::uint32_t bits;
} kTypes[] = {{kFirstType, IDS_NOTES_TYPE_INK, 1},
              {1209, IDS_NOTES_TYPE_RECORDINGS, 2},
              {1210, IDS_NOTES_TYPE_TEXTS, 4},
              {1211, IDS_NOTES_TYPE_DOCUMENTS, 8 + 256},
              {1212, IDS_NOTES_TYPE_WORKBOOKS, 16 + 512},
              {kListwise, IDS_NOTES_TYPE_LISTS, 32}};

constexpr std::uint32_t LowestBit(std::uint32_t bits) {
  return bits & (~bits + 1);
}

class NotesRules final : public PageRules {
 public:
  explicit NotesRules(PageContext& context)
      : context_(context),
        settings_(context.settings.notes),
        hasListwise_(HasListwise(context.machine.registry)),
        searchBar_(context, 1200, kSearchBar, settings_.NotesActiveSearchBar,
                   settings_.NotesCustomSearchBarSelected) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView&) const override {
    return {{kListwise, hasListwise_}};
  }
  void Store(const PageView& view) override;

 private:
  std::wstring Text(int id) const { return context_.language.Text(id); }
  void Tell(int textId, int captionId) const;
  PageTab TypesTab() const;
  void ShowTypes(PageView& view) const;
  void ShowFolders(PageView& view) const;
  void AddFolder(PageView& view);
  void RemoveFolder(PageView& view);
  void StoreTypes(const PageView& view) const;

  PageContext& context_;
  NotesSettings& settings_;
  bool hasListwise_;
  SearchBar searchBar_;
  std::optional<NoteFolders> folders_;  // once their tab is there
};

PageTab FoldersTab() {
  return {IDS_NOTES_TAB_FOLDERS, ItemList{kFolderList,
                                          ListLook::kIcons,
                                          {10, 28, -20, -58},
                                          {{kAdd, IDS_NOTES_ADD_FOLDER, {-140, -53, 60, 20}},
                                           {kRemove, IDS_NOTES_REMOVE_FOLDER, {-70, -53, 60, 20}}},
                                          {{1214, IDS_NOTES_FOLDERS, {10, 8, -20, 20}}}}};
}

PageTab NotesRules::TypesTab() const {
  RowColumn column;
  for (const auto& type : kTypes) {
    column.rows.push_back(
        CheckBits(type.boxId, type.textId, settings_.NotesScannedFileTypes, type.bits));
  }
  return {IDS_NOTES_TAB_TYPES, std::move(column)};
}

PageTabs NotesRules::Tabs() {
  NotesSettings& s = settings_;
  return {
      RowTab(
          IDS_PAGE_TAB_GENERAL,
          {
              searchBar_.AsRow(),
              List(1202, 1203, IDS_NOTES_PREVIEW, s.NotesPreviewNotesState,
                   {IDS_NOTES_PREVIEW_NEVER, IDS_NOTES_PREVIEW_SELECTED, IDS_NOTES_PREVIEW_ALWAYS}),
          }),
      RowTab(IDS_PAGE_TAB_DISPLAY,
             {
                 List(1204, 1205, IDS_DIVIDER, s.NotesBreakLineStyle, DividingLines()),
                 Check(1206, IDS_SHOW_FOLD_BUTTONS, s.NotesIncldFoldBttns),
                 Check(1207, IDS_SHOW_COUNTERS, s.NotesIncldCounters),
             }),
      TypesTab(),
      FoldersTab(),
  };
}

void NotesRules::OnBuilt(PageView& view, int tab) {
  switch (tab) {
    case kGeneralTab:
      searchBar_.Show(view);
      break;
    case kTypesTab:
      ShowTypes(view);
      break;
    case kFoldersTab:
      folders_.emplace(context_.machine);
      ShowFolders(view);
      break;
  }
}

void NotesRules::OnEvent(PageView& view, const PageEvent& event) {
  searchBar_.OnEvent(view, event);
  if (event.kind != PageEventKind::kClicked) return;
  if (event.id == kAdd) AddFolder(view);
  if (event.id == kRemove) RemoveFolder(view);
}

void NotesRules::Tell(int textId, int captionId) const {
  if (context_.dialogs) context_.dialogs->ShowMessage(Text(textId), Text(captionId));
}

void NotesRules::ShowTypes(PageView& view) const {
  for (const auto& type : kTypes) {
    ControlState state;
    const bool isOn = (settings_.NotesScannedFileTypes.Value() & LowestBit(type.bits)) != 0;
    state.checked = isOn && (type.boxId != kListwise || hasListwise_);
    view.SetState(type.boxId, state);
  }
}

void NotesRules::ShowFolders(PageView& view) const {
  std::vector<ListLine> lines;
  for (const std::wstring& path : folders_->Paths()) lines.push_back({path});
  view.SetLines(kFolderList, lines);
}

void NotesRules::AddFolder(PageView& view) {
  if (!context_.dialogs) return;
  const auto chosen = context_.dialogs->ChooseFolder(L"Add Notes Folder", L"");
  if (!chosen) return;
  if (!folders_->Add(*chosen)) {
    Tell(IDS_NOTES_FOLDER_LISTED, IDS_NOTES_FOLDER_LISTED_CAPTION);
    return;
  }
  ShowFolders(view);
  view.SelectLine(kFolderList, static_cast<int>(folders_->Paths().size()) - 1);
}

void NotesRules::RemoveFolder(PageView& view) {
  const int line = view.SelectedLine(kFolderList);
  if (line == kNoChoice) {
    Tell(IDS_SELECT_ENTRY, IDS_SELECT_ENTRY_CAPTION);
    return;
  }
  folders_->Remove(static_cast<std::size_t>(line));
  ShowFolders(view);
}

void NotesRules::Store(const PageView& view) {
  searchBar_.Store(view);
  StoreTypes(view);
  if (folders_ && view.Has(kFolderList)) folders_->Save();
}

// A box that cannot be used stores its bit on purpose: what was chosen with the list program
// outlives a visit without it.
void NotesRules::StoreTypes(const PageView& view) const {
  std::uint32_t bits = 0;
  for (const auto& type : kTypes) {
    if (!view.Has(type.boxId)) return;
    const bool isUsable = type.boxId != kListwise || hasListwise_;
    if (view.State(type.boxId).checked || !isUsable) bits |= type.bits;
  }
  settings_.NotesScannedFileTypes.Set(bits);
}

}  // namespace

std::unique_ptr<PageRules> MakeNotesPage(PageContext& context) {
  return std::make_unique<NotesRules>(context);
}

}  // namespace tidewell
