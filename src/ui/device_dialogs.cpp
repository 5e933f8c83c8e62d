#include "ui/device_dialogs.h"

#include "ui/path_dialog.h"

namespace tidewell {

void DeviceDialogs::ShowMessage(const std::wstring& text, const std::wstring& caption) {
  MessageBoxW(context_().parent, text.c_str(), caption.c_str(), MB_OK);
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

}  // namespace tidewell
