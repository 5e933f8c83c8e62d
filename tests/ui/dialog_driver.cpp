#include "tests/ui/dialog_driver.h"

#include <aygshell.h>
#include <gtest/gtest.h>

namespace tidewell {

namespace {

constexpr UINT kPeriod = 10;  // milliseconds

DialogDriver* running = nullptr;

struct Search {
  const wchar_t* windowClass;
  HWND found = nullptr;
};

BOOL CALLBACK FindVisible(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  if (std::wstring_view(name) != search.windowClass || !IsWindowVisible(window) ||
      !IsWindowEnabled(window)) {
    return TRUE;
  }
  search.found = window;
  return FALSE;
}

LPARAM PointInRow(HWND list, int row) {
  RECT label{};
  ListView_GetItemRect(list, row, &label, LVIR_LABEL);
  return MAKELPARAM(label.left + 4, (label.top + label.bottom) / 2);
}

}  // namespace

DialogDriver::DialogDriver() : timer_(SetTimer(nullptr, 0, kPeriod, OnTimer)) {
  running = this;
}

DialogDriver::~DialogDriver() {
  KillTimer(nullptr, timer_);
  running = nullptr;
  EXPECT_TRUE(steps_.empty()) << steps_.size() << " steps were left when the dialog ended";
}

void CALLBACK DialogDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (running) running->Turn();
}

void DialogDriver::Turn() {
  if (!steps_.empty()) {
    // Off the list first: a step may open a dialog of its own.
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    step();
  } else if (const HWND dialog = FrontDialog()) {
    ADD_FAILURE() << "a dialog was left open";
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  }
}

HWND FrontDialog() {
  Search search{L"#32770"};
  EnumThreadWindows(GetCurrentThreadId(), FindVisible, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND ControlOf(const wchar_t* windowClass, int n) {
  HWND control = nullptr;
  for (int i = 0; i <= n; ++i) {
    control = FindWindowExW(FrontDialog(), control, windowClass, nullptr);
  }
  return control;
}

HWND ListOf() {
  return ControlOf(WC_LISTVIEWW);
}

std::wstring TextOfWindow(HWND window) {
  wchar_t text[512] = {};
  GetWindowTextW(window, text, 512);
  return text;
}

RECT PlaceIn(HWND window, HWND parent) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

std::vector<std::wstring> RowsOf(HWND list) {
  std::vector<std::wstring> rows;
  for (int row = 0; row < ListView_GetItemCount(list); ++row) {
    wchar_t text[512] = {};
    ListView_GetItemText(list, row, 0, text, 512);
    rows.push_back(text);
  }
  return rows;
}

std::optional<int> MarkedRow(HWND list) {
  const int row = ListView_GetNextItem(list, -1, LVNI_SELECTED);
  return row < 0 ? std::nullopt : std::optional(row);
}

void PressKey(WPARAM key) {
  PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
  PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void TapRow(int row) {
  const LPARAM point = PointInRow(ListOf(), row);
  PostMessageW(ListOf(), WM_LBUTTONDOWN, MK_LBUTTON, point);
  PostMessageW(ListOf(), WM_LBUTTONUP, 0, point);
}

void DoubleTapRow(int row) {
  const LPARAM point = PointInRow(ListOf(), row);
  TapRow(row);
  PostMessageW(ListOf(), WM_LBUTTONDBLCLK, MK_LBUTTON, point);
  PostMessageW(ListOf(), WM_LBUTTONUP, 0, point);
}

void TapSoftKey(std::size_t key) {
  const HWND bar = SHFindMenuBar(FrontDialog());
  RECT area{};
  GetClientRect(bar, &area);
  const LPARAM point = MAKELPARAM(key == 0 ? area.right / 4 : area.right * 3 / 4, area.bottom / 2);
  PostMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, point);
  PostMessageW(bar, WM_LBUTTONUP, 0, point);
}

}  // namespace tidewell
