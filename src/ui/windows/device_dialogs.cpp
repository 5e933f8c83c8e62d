#include "ui/windows/device_dialogs.h"

#include "ui/windows/color_picker.h"
#include "ui/windows/file_name_dialog.h"
#include "ui/windows/font_dialog.h"
#include "ui/windows/line_dialog.h"
#include "ui/windows/path_dialog.h"
#include "ui/windows/text_dialog.h"
#include "ui/windows/tick_dialog.h"

namespace tidewell {

void DeviceDialogs::ShowMessage(const std::wstring& text, const std::wstring& caption) {
  MessageBoxW(context_().parent, text.c_str(), caption.c_str(), MB_OK);
}

bool DeviceDialogs::Ask(const std::wstring& question, const std::wstring& caption, bool byDefault) {
  const HWND parent = context_().parent;
  const UINT buttons = MB_YESNO | (byDefault ? MB_DEFBUTTON1 : MB_DEFBUTTON2);
  const int answer = MessageBoxW(parent, question.c_str(), caption.c_str(), buttons);
  // What it is answered for may take its time.
  RedrawWindow(parent, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  return answer == IDYES;
}

std::optional<std::wstring> DeviceDialogs::ChooseFolder(const std::wstring& title,
                                                        const std::wstring& present) {
  return tidewell::ChooseFolder(context_(), title, present);
}

std::optional<std::wstring> DeviceDialogs::ChooseFile(const std::wstring& title,
                                                      const std::wstring& present,
                                                      const std::wstring& pattern) {
  return tidewell::ChooseFile(context_(), title, present, pattern);
}

bool DeviceDialogs::ChooseFileName(FileNameRequest& request) {
  return RunFileNameDialog(context_(), request) == 1;
}

std::optional<Color> DeviceDialogs::ChooseColor(Color present, bool allowsDefault) {
  Color color = present;
  if (!RunColorPicker(context_(), color, allowsDefault)) return std::nullopt;
  return color;
}

bool DeviceDialogs::ChooseFont(LogFont& font, Color& color) {
  return RunFontDialog(context_(), font, color) == 1;
}

std::optional<std::size_t> DeviceDialogs::ChooseLine(const LineRequest& request) {
  return tidewell::ChooseLine(context_(), request);
}

bool DeviceDialogs::TickLines(TickRequest& request) {
  return tidewell::TickLines(context_(), request);
}

std::optional<std::wstring> DeviceDialogs::EnterText(const TextRequest& request) {
  return tidewell::EnterText(context_(), request);
}

}  // namespace tidewell
