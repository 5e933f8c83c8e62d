#include "ui/windows/tick_dialog.h"

#include <commctrl.h>

#include "win32/common_controls.h"
#include "win32/control_hook.h"

namespace tidewell {

namespace {

enum ControlId : int { kLabel = 100, kList };

// Lengths at 96 dots per inch.
constexpr int kMargin = 6;
constexpr int kLabelHeight = 18;

class TickDialog final : public FullScreenDialog {
 public:
  TickDialog(const DialogContext& context, TickRequest& request);
  using FullScreenDialog::Run;

 private:
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override { SetFocus(list_); }
  void OnCommand(int id, int notification) override;

  void MakeList();
  void ShowLines();
  std::optional<LRESULT> OnListMessage(UINT message, WPARAM wParam, LPARAM lParam) const;

  TickRequest& request_;
  HWND label_ = nullptr;
  HWND list_ = nullptr;
  ControlHook hook_;
};

TickDialog::TickDialog(const DialogContext& context, TickRequest& request)
    : FullScreenDialog(context, request.title, OkAndCancel(context.language)), request_(request) {}

void TickDialog::OnCreate() {
  label_ = MakeControl(WC_STATICW, SS_NOPREFIX, kLabel, request_.label);
  MakeList();
  ShowLines();
}

void TickDialog::MakeList() {
  LoadCommonControls();
  list_ = MakeControl(
      WC_LISTVIEWW,
      WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
      kList, L"");
  ListView_SetExtendedListViewStyle(list_, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = request_.columnTitle.data();
  ListView_InsertColumn(list_, 0, &column);
  hook_.Attach(list_, [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnListMessage(message, wParam, lParam);
  });
}

void TickDialog::ShowLines() {
  SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
  int row = 0;
  for (TickedLine& line : request_.lines) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row++;
    item.pszText = line.text.data();
    ListView_InsertItem(list_, &item);
    if (line.ticked) ListView_SetCheckState(list_, item.iItem, TRUE);
  }
  SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
  ListView_SetItemState(list_, 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
}

void TickDialog::OnLayout(int width, int height) {
  const int margin = Scale().ScaleX(kMargin);
  const int labelHeight = Scale().ScaleY(kLabelHeight);
  const int top = margin + labelHeight;
  MoveWindow(label_, margin, margin, width - 2 * margin, labelHeight, TRUE);
  MoveWindow(list_, margin, top, width - 2 * margin, height - top - margin, TRUE);
  ListView_SetColumnWidth(list_, 0, ClientArea(list_).right);
}

void TickDialog::OnCommand(int id, int) {
  if (id != IDOK) return;
  int row = 0;
  for (TickedLine& line : request_.lines) {
    line.ticked = ListView_GetCheckState(list_, row++) == 1;
  }
  Close(IDOK);
}

// The action key turns boxes, and a soft key confirms.
std::optional<LRESULT> TickDialog::OnListMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    TurnTick(list_);
    return 0;
  }
  if (message != WM_GETDLGCODE) return std::nullopt;
  const auto* pressed = reinterpret_cast<const MSG*>(lParam);
  if (!pressed || pressed->message != WM_KEYDOWN || pressed->wParam != VK_RETURN) {
    return std::nullopt;
  }
  return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS;
}

}  // namespace

bool TickLines(const DialogContext& context, TickRequest& request) {
  return TickDialog(context, request).Run() == IDOK;
}

}  // namespace tidewell
