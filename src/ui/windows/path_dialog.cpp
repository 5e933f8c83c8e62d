#include "ui/windows/path_dialog.h"

#include <utility>

#include "ui/path_dialog_model.h"
#include "ui/windows/entry_list.h"
#include "ui/windows/path_line.h"
#include "win32/wait_cursor.h"

namespace tidewell {

namespace {

enum ControlId : int { kFolderLine = 100, kNote, kList };
constexpr WPARAM kOpenTapped = 200;  // a command of the dialog to itself

// A device's header has these signed, a notification's code never is.
constexpr UINT kTap = static_cast<UINT>(NM_CLICK);
constexpr UINT kSecondTap = static_cast<UINT>(NM_DBLCLK);

class PathDialog final : public FullScreenDialog {
 public:
  PathDialog(const DialogContext& context, PathRequest request);
  std::optional<std::wstring> Choose();

 private:
  using Row = PathDialogModel::Row;

  PathDialog(const DialogContext& context, PathRequest request, PathDialogTexts texts);
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override;
  void OnCommand(int id, int notification) override;
  LRESULT OnNotify(const NMHDR& header) override;
  void OnMeasureItem(MEASUREITEMSTRUCT& item) override { list_.Measure(item); }
  void OnDrawItem(const DRAWITEMSTRUCT& item) override { list_.Draw(item); }

  bool OnKey(WPARAM key);
  void OnTap();
  void OnSecondTap();
  void GoUp();
  void Activate(Row row);
  void Take(Row row);
  // After a step: ends the dialog with a path, or shows where the step led.
  void Finish(std::optional<std::wstring> chosen);
  void ShowFolder();
  void ShowFolderLine();
  void ShowNote();

  PathDialogTexts texts_;
  PathDialogModel model_;
  std::optional<std::wstring> chosen_;
  EntryList list_;
  HWND folderLine_ = nullptr;
  HWND note_ = nullptr;
  Row tapped_;  // the row that the tap before opens; a second tap at its place means no more
};

PathDialog::PathDialog(const DialogContext& context, PathRequest request)
    : PathDialog(context, std::move(request), PathDialogTexts(context.language)) {}

PathDialog::PathDialog(const DialogContext& context, PathRequest request, PathDialogTexts texts)
    : FullScreenDialog(context, request.title, {texts.select, texts.cancel}),
      texts_(std::move(texts)),
      model_(context.machine.files, context.machine.locale, std::move(request), texts_.up) {}

std::optional<std::wstring> PathDialog::Choose() {
  Run();
  return std::move(chosen_);
}

void PathDialog::OnCreate() {
  folderLine_ = MakeControl(WC_STATICW, kPathLineStyle, kFolderLine, L"");
  note_ = MakeControl(WC_STATICW, SS_CENTER | SS_NOPREFIX, kNote, L"");
  list_.Create(Window(), kList, TextFont(), Scale(), [this](WPARAM key) { return OnKey(key); });
  ShowFolder();
}

void PathDialog::OnLayout(int width, int height) {
  const int margin = Scale().ScaleX(6);
  const int lineHeight = Scale().ScaleY(16);
  const int top = lineHeight + Scale().ScaleY(8);
  MoveWindow(folderLine_, margin, Scale().ScaleY(5), width - 2 * margin, lineHeight, TRUE);
  list_.Place(0, top, width, height - top, width);
  MoveWindow(note_, margin, top + (height - top) / 3, width - 2 * margin, 3 * lineHeight, TRUE);
  ShowFolderLine();
}

void PathDialog::OnShown() {
  SetFocus(list_.Window());
}

void PathDialog::OnCommand(int id, int) {
  switch (id) {
    case IDOK:
      Take(list_.Marked());
      break;
    case kOpenTapped:
      Activate(tapped_);
      break;
  }
}

LRESULT PathDialog::OnNotify(const NMHDR& header) {
  if (header.idFrom != kList) return 0;
  switch (header.code) {
    case kTap:
      OnTap();
      return 0;
    case kSecondTap:
      OnSecondTap();
      return 0;
    case LVN_ITEMCHANGED:
      EnableLeftKey(model_.CanTake(list_.Marked()));
      return 0;
    default:
      return list_.OnNotify(header).value_or(0);
  }
}

bool PathDialog::OnKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
    case VK_BACK:
      GoUp();
      return true;
    case VK_RETURN:
      Activate(list_.Marked());
      return true;
    default:
      return false;
  }
}

// One tap opens a folder and marks a file; two choose the file. The folder is opened when the list
// is through with the tap.
void PathDialog::OnTap() {
  tapped_ = list_.Marked();
  if (!model_.Opens(tapped_)) tapped_.reset();
  if (tapped_) PostMessageW(Window(), WM_COMMAND, kOpenTapped, 0);
}

void PathDialog::OnSecondTap() {
  if (tapped_) {
    list_.Unmark();
  } else {
    Activate(list_.Marked());
  }
}

void PathDialog::GoUp() {
  const WaitCursor wait;
  model_.GoUp();
  ShowFolder();
}

void PathDialog::Activate(Row row) {
  if (!row) return;
  const WaitCursor wait;
  Finish(model_.Activate(row));
}

void PathDialog::Take(Row row) {
  if (!model_.CanTake(row)) return;
  const WaitCursor wait;
  Finish(model_.Take(row));
}

void PathDialog::Finish(std::optional<std::wstring> chosen) {
  chosen_ = std::move(chosen);
  if (chosen_) {
    Close(IDOK);
  } else {
    ShowFolder();
  }
}

void PathDialog::ShowFolder() {
  list_.Show(model_.Rows(), model_.Folder(), ParentFolder(model_.Folder()));
  if (model_.Suggested()) list_.Mark(*model_.Suggested());
  EnableLeftKey(model_.CanTake(list_.Marked()));
  ShowFolderLine();
  ShowNote();
}

void PathDialog::ShowFolderLine() {
  ShowPath(folderLine_, HasParent(model_.Folder()) ? model_.Folder() : texts_.root);
}

void PathDialog::ShowNote() {
  const FolderNote note = model_.Note();
  SetWindowTextW(note_,
                 (note == FolderNote::kUnreadable ? texts_.unreadable : texts_.empty).c_str());
  ShowWindow(note_, note == FolderNote::kNone ? SW_HIDE : SW_SHOW);
}

}  // namespace

std::optional<std::wstring> ChooseFolder(const DialogContext& context, const std::wstring& title,
                                         const std::wstring& present) {
  return PathDialog(context, {title, present, std::nullopt}).Choose();
}

std::optional<std::wstring> ChooseFile(const DialogContext& context, const std::wstring& title,
                                       const std::wstring& present, const std::wstring& pattern) {
  return PathDialog(context, {title, present, pattern}).Choose();
}

}  // namespace tidewell
