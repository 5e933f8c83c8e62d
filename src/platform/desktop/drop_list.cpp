#include "platform/desktop/drop_list.h"

#include <commctrl.h>

#include <algorithm>

namespace tidewell {

namespace {

constexpr UINT_PTR kSubclassId = 1;

// `height` is that of the open list with its box, in pixels.
void FitLines(HWND combo, int height) {
  RECT box;
  GetWindowRect(combo, &box);
  const int room = height - (box.bottom - box.top) - 2 * GetSystemMetrics(SM_CYBORDER);
  const int line = std::max(static_cast<int>(SendMessageW(combo, CB_GETITEMHEIGHT, 0, 0)), 1);
  SendMessageW(combo, CB_SETMINVISIBLE, static_cast<WPARAM>(std::max(room / line, 1)), 0);
}

LRESULT CALLBACK ComboProc(HWND combo, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR height) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(combo, ComboProc, id);
  const auto* place = reinterpret_cast<WINDOWPOS*>(lParam);
  const bool isSized = message == WM_WINDOWPOSCHANGING && !(place->flags & SWP_NOSIZE);
  const int asked = isSized ? place->cy : 0;
  const LRESULT result = DefSubclassProc(combo, message, wParam, lParam);
  // The control keeps no more than its box; it sizes itself to that too.
  if (isSized && asked > place->cy) {
    SetWindowSubclass(combo, ComboProc, id, static_cast<DWORD_PTR>(asked));
    FitLines(combo, asked);
  } else if (message == WM_SETFONT) {
    FitLines(combo, static_cast<int>(height));
  }
  return result;
}

}  // namespace

void WatchForDropList(HWND window, const CREATESTRUCTW& created) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  if (lstrcmpiW(name, WC_COMBOBOXW) != 0 || (created.style & 3) == CBS_SIMPLE) return;
  SetWindowSubclass(window, ComboProc, kSubclassId, static_cast<DWORD_PTR>(created.cy));
}

}  // namespace tidewell
