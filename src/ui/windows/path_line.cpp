#include "ui/windows/path_line.h"

#include "ui/folder_listing.h"
#include "win32/gdi.h"

namespace tidewell {

void ShowPath(HWND line, const std::wstring& path) {
  const RECT client = ClientArea(line);
  const WindowDc dc(line);
  const Selected font(dc.Dc(), reinterpret_cast<HFONT>(SendMessageW(line, WM_GETFONT, 0, 0)));
  const auto fits = [&](const std::wstring& shown) {
    SIZE size{};
    GetTextExtentExPointW(dc.Dc(), shown.c_str(), static_cast<int>(shown.size()), 0, nullptr,
                          nullptr, &size);
    return size.cx <= client.right;
  };
  SetWindowTextW(line, ShortenPath(path, fits).c_str());
}

}  // namespace tidewell
