#include "pages/page_dialogs.h"

#include "ui/path_dialog.h"

namespace tidewell {

void DevicePageDialogs::ShowMessage(HWND owner, const std::wstring& text,
                                    const std::wstring& caption) {
  MessageBoxW(owner, text.c_str(), caption.c_str(), MB_OK);
}

std::optional<std::wstring> DevicePageDialogs::ChooseFolder(HWND owner, const PageContext& context,
                                                            const std::wstring& title,
                                                            const std::wstring& present) {
  return tidewell::ChooseFolder({owner, context.machine, context.language, context.scale}, title,
                                present);
}

}  // namespace tidewell
