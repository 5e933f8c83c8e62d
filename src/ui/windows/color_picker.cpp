#include "ui/windows/color_picker.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "preview/windows/gdi_canvas.h"
#include "settings/setting.h"
#include "ui/color_picker_model.h"
#include "ui/windows/color_swatch.h"
#include "ui/windows/painted_dialog.h"
#include "win32/common_controls.h"

namespace tidewell {

namespace {

// The numbers of the swatches are 0 to 49, IDOK and IDCANCEL among them.
enum ControlId : int { kTabs = 100, kHtmlLabel, kHtmlField };
constexpr int kFirstLabel = 110;
constexpr int kFirstSlider = 120;
constexpr int kFirstField = 130;

enum Command : int {
  kTellRange = 200,  // of the dialog to itself
  kCancel = 1020,
  kDefault = 1021,  // the button's number as well
  kFirstView = 1022,
  kLastView = 1024
};

constexpr UINT kBandText = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

// As much of it as a colour can be made of.
std::wstring TextOf(HWND field) {
  std::wstring text(kLongestColorText + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
  return text;
}

void ShowText(HWND field, const std::wstring& text) {
  if (TextOf(field) != text) SetWindowTextW(field, text.c_str());
  SendMessageW(field, EM_SETMODIFY, FALSE, 0);
}

class ColorPicker final : public PaintedDialog {
 public:
  ColorPicker(const DialogContext& context, Color present, bool allowsDefault)
      : ColorPicker(context, ColorPickerModel(present, allowsDefault),
                    ColorPickerTexts(context.language)) {}

  using PaintedDialog::Run;
  Color Chosen() const { return model_.Chosen(); }

 private:
  using View = std::vector<HWND>;  // its controls, the first to have the focus in front

  ColorPicker(const DialogContext& context, ColorPickerModel model, ColorPickerTexts texts);
  static std::vector<MenuEntry> MenuOf(const ColorPickerTexts& texts, bool allowsDefault);

  void OnCreate() override;
  void OnLayout(int width, int height) override;
  void OnShown() override { ShowView(PickerView::kChannels); }
  void OnCommand(int id, int notification) override;
  LRESULT OnNotify(const NMHDR& header) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;
  std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool OnVerticalKey(HWND control, int direction) override;
  void Paint(HDC dc) override;
  COLORREF FocusInk(HWND control) const override {
    return control == defaultButton_ ? shades_.bandInk : shades_.cardInk;
  }

  View& ViewOf(PickerView view) { return views_[static_cast<std::size_t>(view)]; }
  HWND MakeHidden(PickerView view, const wchar_t* windowClass, DWORD style, int id,
                  const std::wstring& text = {});
  HWND MakeField(PickerView view, int id);
  void MakeChannels();
  void MakeSwatches();
  void MakeTabs();
  void ShowView(PickerView view);
  void ShowColor();
  void ShowHtmlAndBand();
  std::optional<std::size_t> ChannelOf(int id) const;
  std::optional<std::size_t> SwatchOf(HWND control) const;
  void OnSlider(HWND slider);
  void OnField(int id, int notification);
  bool IsEdited(HWND field, const std::wstring& shown) const;
  bool Commit(int id);
  void Confirm();
  void TellRange();
  void PaintPaper(HDC dc) const;
  void PaintBand(HDC dc) const;

  ColorPickerModel model_;
  ColorPickerTexts texts_;
  PickerShades shades_{GetSysColor(COLOR_HIGHLIGHT)};
  Brush cardBrush_{CreateSolidBrush(shades_.card)};
  PickerLayout layout_{0, 0, Scale()};
  std::array<View, kPickerViews> views_;
  std::array<HWND, kChannelCount> labels_{}, sliders_{}, fields_{};
  HWND htmlLabel_ = nullptr;
  HWND htmlField_ = nullptr;
  std::array<HWND, kSwatchCount> swatches_{};
  HWND tabs_ = nullptr;
  HWND defaultButton_ = nullptr;
};

ColorPicker::ColorPicker(const DialogContext& context, ColorPickerModel model,
                         ColorPickerTexts texts)
    : PaintedDialog(context, texts.title, {texts.select, {}, MenuOf(texts, model.AllowsDefault())}),
      model_(model),
      texts_(std::move(texts)) {}

std::vector<FullScreenDialog::MenuEntry> ColorPicker::MenuOf(const ColorPickerTexts& texts,
                                                             bool allowsDefault) {
  std::vector<MenuEntry> menu;
  int command = kFirstView;
  for (const std::wstring& view : texts.views) menu.push_back({command++, view});
  menu.emplace_back();
  if (allowsDefault) menu.push_back({kDefault, texts.byDefault});
  menu.push_back({kCancel, texts.cancel});
  return menu;
}

void ColorPicker::OnCreate() {
  LoadCommonControls();
  MakeChannels();
  htmlField_ = MakeField(PickerView::kHtml, kHtmlField);
  htmlLabel_ = MakeHidden(PickerView::kHtml, WC_STATICW, SS_RIGHT, kHtmlLabel, texts_.views[1]);
  MakeSwatches();
  MakeTabs();
  if (model_.AllowsDefault()) {
    defaultButton_ = MakeControl(WC_BUTTONW, WS_TABSTOP, kDefault, texts_.byDefault);
    SendMessageW(defaultButton_, WM_SETFONT, reinterpret_cast<WPARAM>(LabelFont()), FALSE);
    AddToWalk(defaultButton_, ControlKind::kButton);
  }
  ShowColor();
}

HWND ColorPicker::MakeHidden(PickerView view, const wchar_t* windowClass, DWORD style, int id,
                             const std::wstring& text) {
  const HWND control = MakeHiddenControl(windowClass, style, id, text);
  ViewOf(view).push_back(control);
  return control;
}

HWND ColorPicker::MakeField(PickerView view, int id) {
  const HWND field = MakeHidden(view, WC_EDITW, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, id);
  AddToWalk(field, ControlKind::kEdit);
  return field;
}

void ColorPicker::MakeChannels() {
  for (std::size_t channel = 0; channel < kChannelCount; ++channel) {
    const int number = static_cast<int>(channel);
    sliders_[channel] = MakeHidden(PickerView::kChannels, TRACKBAR_CLASSW,
                                   WS_TABSTOP | TBS_HORZ | TBS_NOTICKS, kFirstSlider + number);
    SendMessageW(sliders_[channel], TBM_SETRANGE, FALSE, MAKELPARAM(0, kSliderEnd));
    AddToWalk(sliders_[channel], ControlKind::kSlider);
    fields_[channel] = MakeField(PickerView::kChannels, kFirstField + number);
    labels_[channel] = MakeHidden(PickerView::kChannels, WC_STATICW, SS_RIGHT, kFirstLabel + number,
                                  texts_.channels[channel]);
  }
}

void ColorPicker::MakeSwatches() {
  for (std::size_t swatch = 0; swatch < kSwatchCount; ++swatch) {
    swatches_[swatch] = MakeHidden(PickerView::kSwatches, WC_BUTTONW, WS_TABSTOP | BS_OWNERDRAW,
                                   static_cast<int>(swatch));
    AddToWalk(swatches_[swatch], ControlKind::kButton);
  }
}

void ColorPicker::MakeTabs() {
  tabs_ = MakeControl(WC_TABCONTROLW, WS_TABSTOP | TCS_BOTTOM, kTabs, {});
  for (std::size_t tab = 0; tab < texts_.views.size(); ++tab) {
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = texts_.views[tab].data();
    SendMessageW(tabs_, TCM_INSERTITEMW, tab, reinterpret_cast<LPARAM>(&item));
  }
  AddToWalk(tabs_, ControlKind::kTabs);
}

void ColorPicker::OnLayout(int width, int height) {
  layout_ = PickerLayout(width, height, Scale());
  for (std::size_t channel = 0; channel < kChannelCount; ++channel) {
    Place(labels_[channel], layout_.labels[channel]);
    Place(sliders_[channel], layout_.sliders[channel]);
    Place(fields_[channel], layout_.fields[channel]);
  }
  Place(htmlLabel_, layout_.htmlLabel);
  Place(htmlField_, layout_.htmlField);
  for (std::size_t swatch = 0; swatch < kSwatchCount; ++swatch) {
    Place(swatches_[swatch], layout_.swatches[swatch]);
  }
  Place(tabs_, layout_.tabs);
  if (defaultButton_) Place(defaultButton_, layout_.defaultButton);
  Repaint({0, 0, width, height});
}

void ColorPicker::OnCommand(int id, int notification) {
  switch (id) {
    case IDOK:
      Confirm();
      break;
    case kCancel:
      Close(0);
      break;
    case kDefault:
      model_.ChooseDefault();
      ShowColor();  // what is being typed must not make a colour of it
      break;
    case kTellRange:
      TellRange();
      break;
    default:
      if (id >= kFirstView && id <= kLastView) ShowView(static_cast<PickerView>(id - kFirstView));
      OnField(id, notification);
  }
}

LRESULT ColorPicker::OnNotify(const NMHDR& header) {
  if (header.hwndFrom == tabs_ && header.code == static_cast<UINT>(TCN_SELCHANGE)) {
    ShowView(static_cast<PickerView>(SendMessageW(tabs_, TCM_GETCURSEL, 0, 0)));
  }
  return 0;
}

void ColorPicker::OnDrawItem(const DRAWITEMSTRUCT& item) {
  const auto swatch = SwatchOf(item.hwndItem);
  if (!swatch) return;
  RECT inside = item.rcItem;
  InflateRect(&inside, -Scale().ScaleX(1), -Scale().ScaleY(1));
  FillPlain(item.hDC, item.rcItem, shades_.swatchEdge);
  FillPlain(item.hDC, inside, kSwatchColors[*swatch]);
}

std::optional<INT_PTR> ColorPicker::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: {
      // A pressed swatch has the focus; a dialog's own cancelling merely names the control of that
      // number.
      const auto swatch = SwatchOf(reinterpret_cast<HWND>(lParam));
      if (!swatch || GetFocus() != swatches_[*swatch]) break;
      model_.ChooseSwatch(*swatch);
      ShowColor();
      return TRUE;
    }
    case WM_HSCROLL:
      if (LOWORD(wParam) != TB_ENDTRACK) OnSlider(reinterpret_cast<HWND>(lParam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
      SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
      SetTextColor(reinterpret_cast<HDC>(wParam), shades_.cardInk);
      return reinterpret_cast<INT_PTR>(cardBrush_.Get());
  }
  return PaintedDialog::OnMessage(message, wParam, lParam);
}

bool ColorPicker::OnVerticalKey(HWND control, int direction) {
  const auto swatch = SwatchOf(control);
  if (!swatch) return false;
  const auto next = SwatchInNextRow(*swatch, direction);
  SetFocus(next ? swatches_[*next] : tabs_);
  return true;
}

// The new view has the focus before the old one is hidden, which would lose it.
void ColorPicker::ShowView(PickerView view) {
  SendMessageW(tabs_, TCM_SETCURSEL, static_cast<WPARAM>(view), 0);
  CheckEntry(kFirstView, kLastView, kFirstView + static_cast<int>(view));
  for (const HWND control : ViewOf(view)) ShowWindow(control, SW_SHOW);
  SetFocus(ViewOf(view).front());
  SendMessageW(htmlField_, EM_SETSEL, 0, -1);
  for (const View& other : views_) {
    if (&other == &ViewOf(view)) continue;
    for (const HWND control : other) ShowWindow(control, SW_HIDE);
  }
}

void ColorPicker::ShowColor() {
  for (std::size_t channel = 0; channel < kChannelCount; ++channel) {
    SendMessageW(sliders_[channel], TBM_SETPOS, TRUE, model_.SliderPosition(channel));
    ShowText(fields_[channel], model_.ChannelText(channel));
  }
  ShowHtmlAndBand();
}

void ColorPicker::ShowHtmlAndBand() {
  ShowText(htmlField_, model_.HtmlText());
  Repaint(layout_.band);
}

std::optional<std::size_t> ColorPicker::ChannelOf(int id) const {
  if (id < kFirstField || id >= kFirstField + static_cast<int>(kChannelCount)) return std::nullopt;
  return static_cast<std::size_t>(id - kFirstField);
}

std::optional<std::size_t> ColorPicker::SwatchOf(HWND control) const {
  const auto found = std::ranges::find(swatches_, control);
  if (!control || found == swatches_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - swatches_.begin());
}

// The slider stays where the finger has it, between two positions of the channel's values.
void ColorPicker::OnSlider(HWND slider) {
  const auto found = std::ranges::find(sliders_, slider);
  if (found == sliders_.end()) return;
  const auto channel = static_cast<std::size_t>(found - sliders_.begin());
  model_.MoveSlider(channel, static_cast<int>(SendMessageW(slider, TBM_GETPOS, 0, 0)));
  ShowText(fields_[channel], model_.ChannelText(channel));
  ShowHtmlAndBand();
}

void ColorPicker::OnField(int id, int notification) {
  if (id != kHtmlField && !ChannelOf(id)) return;
  if (notification == EN_SETFOCUS) {
    SHSipPreference(Window(), SIP_UP);
  } else if (notification == EN_KILLFOCUS) {
    SHSipPreference(Window(), SIP_DOWN);
    // Not before the focus has arrived where it is going.
    if (!Commit(id)) PostMessageW(Window(), WM_COMMAND, kTellRange, 0);
  }
}

// Only passing through a field must not make a colour of the default.
bool ColorPicker::IsEdited(HWND field, const std::wstring& shown) const {
  return SendMessageW(field, EM_GETMODIFY, 0, 0) || TextOf(field) != shown;
}

// False when the field holds a number out of range: it shows the channel again.
bool ColorPicker::Commit(int id) {
  bool isValid = true;
  if (const auto channel = ChannelOf(id)) {
    const HWND field = fields_[*channel];
    if (!IsEdited(field, model_.ChannelText(*channel))) return true;
    isValid = model_.EnterNumber(*channel, TextOf(field));
  } else {
    if (!IsEdited(htmlField_, model_.HtmlText())) return true;
    model_.EnterHtml(TextOf(htmlField_));
  }
  ShowColor();
  return isValid;
}

void ColorPicker::Confirm() {
  const int focused = GetDlgCtrlID(GetFocus());
  if ((focused == kHtmlField || ChannelOf(focused)) && !Commit(focused)) {
    TellRange();
  } else {
    Close(1);
  }
}

void ColorPicker::TellRange() {
  MessageBoxW(Window(), texts_.outOfRange.c_str(), texts_.outOfRangeCaption.c_str(),
              MB_OK | MB_ICONSTOP);
}

void ColorPicker::Paint(HDC dc) {
  PaintPaper(dc);
  PaintBand(dc);
}

void ColorPicker::PaintPaper(HDC dc) const {
  FillVertically(dc, SystemRect(layout_.paper), shades_.paperTop, shades_.paperBottom);
  const Rect& card = layout_.card;
  const int edge = Scale().ScaleY(1);
  FillPlain(dc, SystemRect(card), shades_.cardEdge);
  FillPlain(dc, SystemRect({card.left, card.top + edge, card.width, card.height - 2 * edge}),
            shades_.card);
}

void ColorPicker::PaintBand(HDC dc) const {
  FillVertically(dc, SystemRect(layout_.band), shades_.bandTop, shades_.bandBottom);
  const Selected font(dc, LabelFont());
  SetTextColor(dc, shades_.bandInk);
  RECT label = SystemRect(layout_.bandLabel);
  DrawTextW(dc, texts_.selected.c_str(), -1, &label, kBandText);
  if (model_.Chosen() == kNoColor) {
    RECT sample = SystemRect(layout_.sample);
    DrawTextW(dc, texts_.byDefault.c_str(), -1, &sample, kBandText | DT_CENTER);
  } else {
    DrawColorSwatch(dc, layout_.sample, Scale().ScaleX(1), model_.Chosen(), {});
  }
}

}  // namespace

int RunColorPicker(const DialogContext& context, Color& color, bool allowsDefault) {
  ColorPicker picker(context, color, allowsDefault);
  const bool isConfirmed = picker.Run() == 1;
  color = isConfirmed ? picker.Chosen() : kColorCancelled;
  return isConfirmed;
}

}  // namespace tidewell
