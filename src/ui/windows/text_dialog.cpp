#include "ui/windows/text_dialog.h"

#include <commctrl.h>

namespace tidewell {

namespace {

enum ControlId : int { kLabel = 100, kField };

// Lengths at 96 dots per inch.
constexpr int kMargin = 10;
constexpr int kLabelHeight = 18;
constexpr int kFieldHeight = 20;

class TextDialog final : public FullScreenDialog {
 public:
  TextDialog(const DialogContext& context, const TextRequest& request);
  std::optional<std::wstring> Enter();

 private:
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override;
  void OnCommand(int id, int notification) override;

  void Confirm();
  std::wstring Typed() const;

  const TextRequest& request_;
  std::optional<std::wstring> taken_;
  HWND label_ = nullptr;
  HWND field_ = nullptr;
};

TextDialog::TextDialog(const DialogContext& context, const TextRequest& request)
    : FullScreenDialog(context, request.title, OkAndCancel(context.language)), request_(request) {}

std::optional<std::wstring> TextDialog::Enter() {
  Run();
  return std::move(taken_);
}

void TextDialog::OnCreate() {
  label_ = MakeControl(WC_STATICW, SS_NOPREFIX, kLabel, request_.label);
  field_ = MakeControl(WC_EDITW, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kField, request_.text);
  SendMessageW(field_, EM_LIMITTEXT, request_.longest, 0);
}

void TextDialog::OnLayout(int width, int) {
  const int margin = Scale().ScaleX(kMargin);
  const int labelHeight = Scale().ScaleY(kLabelHeight);
  MoveWindow(label_, margin, margin, width - 2 * margin, labelHeight, TRUE);
  MoveWindow(field_, margin, margin + labelHeight, width - 2 * margin, Scale().ScaleY(kFieldHeight),
             TRUE);
}

// What is there can be typed over at once.
void TextDialog::OnShown() {
  SetFocus(field_);
  SendMessageW(field_, EM_SETSEL, 0, -1);
  SHSipPreference(Window(), SIP_UP);
}

void TextDialog::OnCommand(int id, int) {
  if (id == IDOK) Confirm();
}

void TextDialog::Confirm() {
  std::wstring text = Typed();
  const std::wstring refusal = request_.refusal(text);
  if (refusal.empty()) {
    taken_ = std::move(text);
    Close(IDOK);
    return;
  }
  MessageBoxW(Window(), refusal.c_str(), request_.refusalCaption.c_str(), MB_OK);
  SetFocus(field_);
}

std::wstring TextDialog::Typed() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field_)), L'\0');
  GetWindowTextW(field_, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

}  // namespace

std::optional<std::wstring> EnterText(const DialogContext& context, const TextRequest& request) {
  return TextDialog(context, request).Enter();
}

}  // namespace tidewell
