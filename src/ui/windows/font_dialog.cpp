#include "ui/windows/font_dialog.h"

#include <commctrl.h>

#include <array>
#include <utility>

#include "platform/text.h"
#include "preview/font_holder.h"
#include "preview/text_drawing.h"
#include "preview/windows/gdi_canvas.h"
#include "ui/font_dialog_model.h"
#include "ui/windows/color_picker.h"
#include "ui/windows/color_swatch.h"
#include "ui/windows/look.h"
#include "ui/windows/painted_dialog.h"

namespace tidewell {

namespace {

enum ControlId : int { kSizeLabel = 100, kSizeList, kColorLabel, kColorButton };
constexpr int kFirstCheck = 110;  // in the order of FontStyle

class FontDialog final : public PaintedDialog {
 public:
  FontDialog(const DialogContext& context, LogFont& font, Color& color)
      : FontDialog(context, font, color, FontDialogTexts(context.language)) {}

  using PaintedDialog::Run;

 private:
  FontDialog(const DialogContext& context, LogFont& font, Color& color, FontDialogTexts texts);
  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override { SetFocus(sizeList_); }
  void OnCommand(int id, int notification) override;
  void Paint(HDC dc) override;
  COLORREF FocusInk(HWND) const override { return kFocusEdge; }

  void MakeSizes();
  void MakeCheck(FontStyle style);
  void OnCheck(int id);
  void ChooseColor();
  void Accept();
  void PaintSample(HDC dc);

  const DialogContext& context_;
  LogFont& font_;
  Color& color_;
  FontDialogModel model_;
  FontDialogTexts texts_;
  FontDialogLayout layout_{0, 0, Scale()};
  FontHolder sampleFont_;
  HWND sizeLabel_ = nullptr;
  HWND sizeList_ = nullptr;
  std::array<HWND, kFontStyles> checks_{};
  HWND colorLabel_ = nullptr;
  HWND colorButton_ = nullptr;
};

FontDialog::FontDialog(const DialogContext& context, LogFont& font, Color& color,
                       FontDialogTexts texts)
    : PaintedDialog(context, texts.title, {texts.ok, texts.cancel}),
      context_(context),
      font_(font),
      color_(color),
      model_(font),
      texts_(std::move(texts)) {}

void FontDialog::OnCreate() {
  sizeLabel_ = MakeControl(WC_STATICW, SS_RIGHT, kSizeLabel, texts_.size);
  MakeSizes();
  for (const FontStyle style : {kBold, kItalic, kUnderline, kStrikeOut}) MakeCheck(style);
  colorLabel_ = MakeControl(WC_STATICW, SS_RIGHT, kColorLabel, texts_.color);
  colorButton_ = MakeControl(WC_BUTTONW, WS_TABSTOP, kColorButton, texts_.chooseColor);
  AddToWalk(colorButton_, ControlKind::kButton);
}

void FontDialog::MakeSizes() {
  sizeList_ = MakeControl(WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, kSizeList, {});
  for (int size = kLeastFontSize; size <= kGreatestFontSize; ++size) {
    const LRESULT line = SendMessageW(sizeList_, CB_ADDSTRING, 0,
                                      reinterpret_cast<LPARAM>(FormatDecimal(size).c_str()));
    SendMessageW(sizeList_, CB_SETITEMDATA, static_cast<WPARAM>(line), size);
  }
  SendMessageW(sizeList_, CB_SETCURSEL, static_cast<WPARAM>(model_.SizeLine()), 0);
  AddToWalk(sizeList_, ControlKind::kList);
}

// The box stands on the right, as on every page.
void FontDialog::MakeCheck(FontStyle style) {
  const HWND check = MakeControl(WC_BUTTONW, BS_AUTOCHECKBOX | BS_LEFTTEXT | BS_RIGHT | WS_TABSTOP,
                                 kFirstCheck + style, texts_.styles[style]);
  SendMessageW(check, BM_SETCHECK, model_.Has(style), 0);
  AddToWalk(check, ControlKind::kCheck);
  checks_[style] = check;
}

void FontDialog::OnLayout(int width, int height) {
  layout_ = FontDialogLayout(width, height, Scale());
  Place(sizeLabel_, layout_.sizeLabel);
  Place(sizeList_, layout_.sizeList);
  for (std::size_t style = 0; style < kFontStyles; ++style) {
    Place(checks_[style], layout_.checks[style]);
  }
  Place(colorLabel_, layout_.colorLabel);
  Place(colorButton_, layout_.colorButton);
  Repaint({0, 0, width, height});
}

void FontDialog::OnCommand(int id, int notification) {
  switch (id) {
    case IDOK:
      Accept();
      break;
    case kSizeList:
      if (notification != CBN_SELCHANGE) break;
      model_.ChooseSize(static_cast<int>(SendMessageW(sizeList_, CB_GETCURSEL, 0, 0)));
      Repaint(layout_.sample);
      break;
    case kColorButton:
      ChooseColor();
      break;
    default:
      OnCheck(id);
  }
}

void FontDialog::OnCheck(int id) {
  const int style = id - kFirstCheck;
  if (style < 0 || style >= static_cast<int>(kFontStyles)) return;
  const HWND check = checks_[static_cast<std::size_t>(style)];
  model_.Set(static_cast<FontStyle>(style), SendMessageW(check, BM_GETCHECK, 0, 0) == BST_CHECKED);
  Repaint(layout_.sample);
}

void FontDialog::ChooseColor() {
  Color color = color_;
  const DialogContext above{Window(), context_.machine, context_.language, context_.scale};
  if (!RunColorPicker(above, color, true)) return;
  color_ = color;
  Repaint(layout_.color);
  Repaint(layout_.sample);
}

void FontDialog::Accept() {
  font_ = model_.Edited();
  Close(1);
}

void FontDialog::Paint(HDC dc) {
  FillPlain(dc, ClientArea(Window()), kPaper);
  const Selected font(dc, LabelFont());
  DrawColorSwatch(dc, layout_.color, Scale().ScaleX(1), color_, texts_.automatic);
  PaintSample(dc);
}

void FontDialog::PaintSample(HDC dc) {
  GdiCanvas canvas(dc);
  const CanvasFont& font = sampleFont_.Get(canvas, model_.Edited());
  const int lineHeight = canvas.LineHeight(font);
  const Rect& area = layout_.sample;
  if (area.height < lineHeight) return;
  const Color letters = color_ == kNoColor ? kBlack : color_;
  canvas.Fill(area, GroundOfSample(letters));
  const int margin = Scale().ScaleX(4);
  const Rect line{area.left + margin, area.top + (area.height - lineHeight) / 2,
                  area.width - 2 * margin, lineHeight};
  WriteTitle(canvas, line, texts_.sample, {font, letters});
}

}  // namespace

int RunFontDialog(const DialogContext& context, LogFont& font, Color& color) {
  return FontDialog(context, font, color).Run() == 1;
}

}  // namespace tidewell
