#include "pages/page_dialogs.h"

namespace tidewell {

void DevicePageDialogs::ShowMessage(HWND owner, const std::wstring& text,
                                    const std::wstring& caption) {
  MessageBoxW(owner, text.c_str(), caption.c_str(), MB_OK);
}

std::optional<std::wstring> DevicePageDialogs::ChooseFolder(HWND, const PageContext&,
                                                            const std::wstring&,
                                                            const std::wstring&) {
  return std::nullopt;
}

}  // namespace tidewell
