#include "tests/ui/dialog_driver.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include <utility>

#include "tests/support/window_support.h"

namespace tidewell {
namespace {

constexpr UINT kPeriod = 10;  // milliseconds

DialogDriver* running = nullptr;

void TapOnRow(int row, UINT downMessage) {
  RECT place{};
  ListView_GetItemRect(List(), row, &place, LVIR_LABEL);
  PostTap(List(), {place.left + 4, (place.top + place.bottom) / 2}, downMessage);
}

void TapSoftKey(int quarter) {
  const HWND bar = SHFindMenuBar(FrontDialog());
  PostTap(bar, {ClientArea(bar).right * quarter / 4, 1});
}

}  // namespace

DialogDriver::DialogDriver(std::function<std::wstring()> show)
    : show_(std::move(show)), timer_(SetTimer(nullptr, 0, kPeriod, OnTimer)) {
  running = this;
}

DialogDriver::~DialogDriver() {
  KillTimer(nullptr, timer_);
  running = nullptr;
  EXPECT_TRUE(steps_.empty()) << steps_.size() << " steps were left when the dialog ended";
  EXPECT_EQ(expected_, L"");
}

void CALLBACK DialogDriver::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
  if (running) running->Turn();
}

void DialogDriver::Turn() {
  if (const std::wstring expected = std::exchange(expected_, {}); !expected.empty()) {
    EXPECT_EQ(show_(), expected);
  }
  if (!steps_.empty()) {
    // Off the list first: the loop of a message box takes the next turns inside this one.
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    expected_ = step.shown;
    if (step.act) step.act();
  } else if (const HWND dialog = FrontDialog()) {
    ADD_FAILURE() << "a dialog was left open";
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  }
}

HWND FrontDialog() {
  return FindOwnWindow(L"#32770");
}

HWND ControlOf(const wchar_t* windowClass, int n) {
  HWND control = nullptr;
  for (int i = 0; i <= n; ++i) {
    control = FindWindowExW(FrontDialog(), control, windowClass, nullptr);
  }
  return control;
}

RECT PlaceInDialog(HWND control) {
  RECT place = WindowRect(control);
  MapWindowPoints(nullptr, FrontDialog(), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

HWND List() {
  return ControlOf(WC_LISTVIEWW);
}

std::wstring RowsShown() {
  const int marked = ListView_GetNextItem(List(), -1, LVNI_SELECTED);
  const int count = ListView_GetItemCount(List());
  std::wstring rows;
  for (int row = 0; row < count; ++row) {
    if (count > 10 && row != marked) continue;
    wchar_t text[300] = {};
    ListView_GetItemText(List(), row, 0, text, 300);
    rows.append(rows.empty() ? L" " : L", ").append(row == marked ? L">" : L"").append(text);
  }
  return rows;
}

std::function<void()> Key(WPARAM key) {
  return [key] { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); };
}

std::function<void()> TapRow(int row) {
  return [row] { TapOnRow(row, WM_LBUTTONDOWN); };
}

std::function<void()> DoubleTapRow(int row) {
  return [row] {
    TapOnRow(row, WM_LBUTTONDOWN);
    TapOnRow(row, WM_LBUTTONDBLCLK);
  };
}

void TapLeftKey() {
  TapSoftKey(1);
}

void TapRightKey() {
  TapSoftKey(3);
}

}  // namespace tidewell
