#include "ui/windows/file_name_dialog.h"

#include <utility>

#include "ui/windows/entry_list.h"
#include "ui/windows/path_line.h"
#include "win32/control_hook.h"
#include "win32/wait_cursor.h"

namespace tidewell {

namespace {

enum ControlId : int {
  kNameLabel = 100,
  kNameField,
  kExtensionLabel,
  kExtensionField,
  kFolderLine,
  kList
};

class FileNameDialog final : public FullScreenDialog {
 public:
  FileNameDialog(const DialogContext& context, FileNameDialogModel& model);
  using FullScreenDialog::Run;

 private:
  FileNameDialog(const DialogContext& context, FileNameDialogModel& model,
                 FileNameDialogTexts texts);
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override;
  void OnCommand(int id, int notification) override;
  LRESULT OnNotify(const NMHDR& header) override;
  void OnMeasureItem(MEASUREITEMSTRUCT& item) override { list_.Measure(item); }
  void OnDrawItem(const DRAWITEMSTRUCT& item) override { list_.Draw(item); }

  void MakeFields();
  bool OnListKey(WPARAM key);
  std::optional<LRESULT> OnFieldMessage(UINT message, WPARAM key);
  void FillList();
  void Confirm();
  void Refuse(const std::wstring& message);
  void FollowMark();
  std::wstring TypedName() const;

  FileNameDialogModel& model_;
  FileNameDialogTexts texts_;
  HWND nameLabel_ = nullptr;
  HWND nameField_ = nullptr;
  HWND extensionLabel_ = nullptr;
  HWND extensionField_ = nullptr;
  HWND folderLine_ = nullptr;
  EntryList list_;
  ControlHook fieldHook_;
  std::wstring followed_;  // the name that the last marked row put into the field
};

void MoveTo(HWND control, const DialogPlace& place) {
  MoveWindow(control, place.x, place.y, place.width, place.height, TRUE);
}

FileNameDialog::FileNameDialog(const DialogContext& context, FileNameDialogModel& model)
    : FileNameDialog(context, model, FileNameDialogTexts(context.language, model.Request())) {}

FileNameDialog::FileNameDialog(const DialogContext& context, FileNameDialogModel& model,
                               FileNameDialogTexts texts)
    : FullScreenDialog(context, model.Request().title, {texts.select, texts.cancel}),
      model_(model),
      texts_(std::move(texts)) {}

void FileNameDialog::OnCreate() {
  MakeFields();
  folderLine_ = MakeControl(WC_STATICW, kPathLineStyle, kFolderLine, L"");
  list_.Create(Window(), kList, TextFont(), Scale(), [this](WPARAM key) { return OnListKey(key); });
  FillList();
}

void FileNameDialog::MakeFields() {
  const FileNameRequest& request = model_.Request();
  nameLabel_ = MakeLabel(kNameLabel, texts_.nameLabel);
  nameField_ = MakeControl(WC_EDITW, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kNameField,
                           request.initialName);
  SendMessageW(nameField_, EM_LIMITTEXT, kLongestTypedName, 0);
  fieldHook_.Attach(nameField_, [this](UINT message, WPARAM wParam, LPARAM) {
    return OnFieldMessage(message, wParam);
  });
  if (request.extension.empty()) return;
  extensionLabel_ = MakeLabel(kExtensionLabel, texts_.extensionLabel);
  extensionField_ = MakeControl(WC_EDITW, WS_BORDER | WS_DISABLED | ES_AUTOHSCROLL, kExtensionField,
                                request.typeLabel.empty() ? request.extension : request.typeLabel);
}

void FileNameDialog::OnLayout(int width, int height) {
  const FileNameLayout layout =
      LayOutFileNameDialog(width, height, extensionField_ != nullptr, Scale());
  MoveTo(nameLabel_, layout.nameLabel);
  MoveTo(nameField_, layout.nameField);
  if (extensionField_) {
    MoveTo(extensionLabel_, layout.extensionLabel);
    MoveTo(extensionField_, layout.extensionField);
  }
  MoveTo(folderLine_, layout.folder);
  ShowPath(folderLine_, model_.Request().folder);
  list_.Place(layout.list.x, layout.list.y, layout.list.width, layout.list.height,
              layout.columnWidth);
}

void FileNameDialog::OnShown() {
  SetFocus(list_.Window());
}

void FileNameDialog::OnCommand(int id, int notification) {
  if (id == IDOK) {
    Confirm();
  } else if (id == kNameField && notification == EN_SETFOCUS) {
    SHSipPreference(Window(), SIP_UP);
  } else if (id == kNameField && notification == EN_KILLFOCUS) {
    SHSipPreference(Window(), SIP_DOWN);
  }
}

LRESULT FileNameDialog::OnNotify(const NMHDR& header) {
  if (header.idFrom != kList) return 0;
  switch (header.code) {
    case LVN_ITEMACTIVATE:
      if (model_.Activate(list_.Anchor())) Close(1);
      return 0;
    case LVN_ITEMCHANGED:
      FollowMark();
      return 0;
    default:
      return list_.OnNotify(header).value_or(0);
  }
}

bool FileNameDialog::OnListKey(WPARAM key) {
  if (key != VK_UP || list_.Anchor()) return false;
  SetFocus(nameField_);
  SendMessageW(nameField_, EM_SETSEL, 0, -1);
  return true;
}

std::optional<LRESULT> FileNameDialog::OnFieldMessage(UINT message, WPARAM key) {
  if (message != WM_KEYDOWN || key != VK_DOWN) return std::nullopt;
  SetFocus(list_.Window());
  return 0;
}

void FileNameDialog::FillList() {
  const WaitCursor wait;
  model_.Fill();
  list_.Show(model_.Entries(), model_.Request().folder, L"");
}

void FileNameDialog::Confirm() {
  switch (model_.Confirm(TypedName())) {
    case NameProblem::kMissing:
      Refuse(texts_.nameMissing);
      break;
    case NameProblem::kIllegal:
      Refuse(texts_.nameIllegal);
      break;
    case NameProblem::kNone:
      Close(1);
      break;
  }
}

void FileNameDialog::Refuse(const std::wstring& message) {
  MessageBoxW(Window(), message.c_str(), texts_.errorCaption.c_str(), MB_OK | MB_ICONSTOP);
}

// A marked file names itself in the field, unless a name stands there that the user or the caller
// put in.
void FileNameDialog::FollowMark() {
  const auto name = model_.NameFor(list_.Marked());
  const std::wstring typed = TypedName();
  if (!name || (!typed.empty() && typed != followed_)) return;
  followed_ = *name;
  SetWindowTextW(nameField_, followed_.c_str());
}

std::wstring FileNameDialog::TypedName() const {
  std::wstring name(kLongestTypedName + 1, L'\0');
  name.resize(static_cast<std::size_t>(
      GetWindowTextW(nameField_, name.data(), static_cast<int>(name.size()))));
  return name;
}

}  // namespace

int RunFileNameDialog(const DialogContext& context, FileNameDialogModel& model) {
  return static_cast<int>(FileNameDialog(context, model).Run());
}

int RunFileNameDialog(const DialogContext& context, FileNameRequest& request) {
  FileNameDialogModel model(context.machine.files, context.machine.locale, request);
  return RunFileNameDialog(context, model);
}

}  // namespace tidewell
