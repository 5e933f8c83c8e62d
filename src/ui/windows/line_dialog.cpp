#include "ui/windows/line_dialog.h"

#include <commctrl.h>

#include "ui/windows/device_dialogs.h"

namespace tidewell {

namespace {

enum ControlId : int { kIntroduction = 100, kLabel, kLines };

// Lengths at 96 dots per inch.
constexpr int kMargin = 10;
constexpr int kLabelWidth = 60;
constexpr int kLabelDrop = 3;
constexpr int kRowHeight = 20;
constexpr int kGap = 8;
constexpr int kDropHeight = 140;

class LineDialog final : public FullScreenDialog {
 public:
  LineDialog(const DialogContext& context, const LineRequest& request);
  std::optional<std::size_t> Choose();

 private:
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override;
  void OnCommand(int id, int notification) override;

  int HeightOf(const std::wstring& text, int width) const;
  std::optional<std::size_t> SelectedLine() const;

  DialogContext context_;
  const LineRequest& request_;
  HWND introduction_ = nullptr;
  HWND label_ = nullptr;
  HWND lines_ = nullptr;
};

LineDialog::LineDialog(const DialogContext& context, const LineRequest& request)
    : FullScreenDialog(context, request.title, OkAndCancel(context.language)),
      context_(context),
      request_(request) {}

std::optional<std::size_t> LineDialog::Choose() {
  const INT_PTR taken = Run();
  if (taken <= 0) return std::nullopt;
  return static_cast<std::size_t>(taken - 1);
}

void LineDialog::OnCreate() {
  introduction_ = MakeControl(WC_STATICW, SS_NOPREFIX, kIntroduction, request_.introduction);
  label_ = MakeControl(WC_STATICW, SS_NOPREFIX, kLabel, request_.label);
  lines_ = MakeControl(WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kLines, L"");
  SendMessageW(lines_, WM_SETREDRAW, FALSE, 0);
  for (const std::wstring& line : request_.lines) {
    SendMessageW(lines_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
  }
  SendMessageW(lines_, WM_SETREDRAW, TRUE, 0);
  SendMessageW(lines_, CB_SETCURSEL, 0, 0);
}

void LineDialog::OnLayout(int width, int) {
  const int margin = Scale().ScaleX(kMargin);
  const int textWidth = width - 2 * margin;
  const int textHeight = HeightOf(request_.introduction, textWidth);
  MoveWindow(introduction_, margin, margin, textWidth, textHeight, TRUE);
  const int top = margin + textHeight + Scale().ScaleY(kGap);
  const int labelWidth = Scale().ScaleX(kLabelWidth);
  MoveWindow(label_, margin, top + Scale().ScaleY(kLabelDrop), labelWidth,
             Scale().ScaleY(kRowHeight), TRUE);
  MoveWindow(lines_, margin + labelWidth, top, textWidth - labelWidth, Scale().ScaleY(kDropHeight),
             TRUE);
}

int LineDialog::HeightOf(const std::wstring& text, int width) const {
  const WindowDc dc(Window());
  const Selected font(dc.Dc(), TextFont());
  RECT area{0, 0, width, 0};
  return DrawTextW(dc.Dc(), text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
}

void LineDialog::OnShown() {
  SHDoneButton(Window(), SHDB_SHOW);
  SetFocus(lines_);
}

std::optional<std::size_t> LineDialog::SelectedLine() const {
  const LRESULT line = SendMessageW(lines_, CB_GETCURSEL, 0, 0);
  if (line == CB_ERR) return std::nullopt;
  return static_cast<std::size_t>(line);
}

void LineDialog::OnCommand(int id, int) {
  if (id != IDOK) return;
  DeviceDialogs over([this] {
    return DialogContext{Window(), context_.machine, context_.language, context_.scale};
  });
  const auto line = SelectedLine();
  switch (request_.confirm(line, over)) {
    case Verdict::kStay:
      break;
    case Verdict::kCancel:
      Close(0);
      break;
    case Verdict::kTake:
      Close(static_cast<INT_PTR>(line.value_or(0)) + 1);
      break;
  }
}

}  // namespace

std::optional<std::size_t> ChooseLine(const DialogContext& context, const LineRequest& request) {
  return LineDialog(context, request).Choose();
}

}  // namespace tidewell
