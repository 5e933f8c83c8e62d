#include "platform/desktop/drop_list.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>

#include "platform/desktop/subclass.h"

namespace tidewell {

namespace {

class DropList final : public Subclass {
 public:
  // Of the open list with its box, in pixels.
  explicit DropList(int height) : height_(height) {}

 private:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  int BoxHeight() const;
  void FitLines() const;

  int height_;
};

LRESULT DropList::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto* place = reinterpret_cast<WINDOWPOS*>(lParam);
  const bool isMoving = message == WM_WINDOWPOSCHANGING;
  const bool isSized = (isMoving || message == WM_WINDOWPOSCHANGED) && !(place->flags & SWP_NOSIZE);
  const int asked = isSized ? place->cy : 0;
  const LRESULT result = PassOn(message, wParam, lParam);
  // The control keeps no more than its box, before it is moved or after; it sizes itself to that
  // too.
  const bool isCut = isSized && asked > (isMoving ? place->cy : BoxHeight());
  if (isCut) height_ = asked;
  if (isCut || message == WM_SETFONT) FitLines();
  return result;
}

int DropList::BoxHeight() const {
  RECT box;
  GetWindowRect(Window(), &box);
  return box.bottom - box.top;
}

void DropList::FitLines() const {
  const int room = height_ - BoxHeight() - 2 * GetSystemMetrics(SM_CYBORDER);
  const int line = std::max(static_cast<int>(PassOn(CB_GETITEMHEIGHT, 0, 0)), 1);
  PassOn(CB_SETMINVISIBLE, static_cast<WPARAM>(std::max(room / line, 1)), 0);
}

}  // namespace

void WatchForDropList(HWND window, const CREATESTRUCTW& created) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  if (lstrcmpiW(name, WC_COMBOBOXW) != 0 || (created.style & 3) == CBS_SIMPLE) return;
  Subclass::Attach(window, std::make_unique<DropList>(created.cy));
}

}  // namespace tidewell
