#include "platform/desktop/message_box.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/window_support.h"

namespace tidewell {
namespace {

// The parts that can be seen; an icon's control without an icon cannot.
std::vector<HWND> PartsOf(HWND box) {
  std::vector<HWND> parts;
  for (HWND part = GetWindow(box, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
    const bool isIcon = (GetWindowLongW(part, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    if (!isIcon || SendMessageW(part, STM_GETICON, 0, 0)) parts.push_back(part);
  }
  return parts;
}

void ExpectPartsApart(HWND box) {
  const RECT place = WindowRect(box);
  EXPECT_LE(place.right, GetSystemMetrics(SM_CXSCREEN));
  const std::vector<HWND> parts = PartsOf(box);
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const RECT part = WindowRect(parts[i]);
    RECT common;
    EXPECT_TRUE(UnionRect(&common, &part, &place) && EqualRect(&common, &place)) << i;
    for (std::size_t k = i + 1; k < parts.size(); ++k) {
      const RECT other = WindowRect(parts[k]);
      EXPECT_FALSE(IntersectRect(&common, &part, &other)) << i << " and " << k;
    }
  }
}

TEST(MessageBoxTest, AQuestionTooWideForTheScreenWrapsAndItsPartsStayApart) {
  std::wstring text;
  for (int words = 0; words < 40; ++words) text += L"Exit without saving? ";
  for (const UINT type : {MB_YESNO, MB_OK | MB_ICONSTOP}) {
    for (const std::size_t length : {21u, 126u, 420u}) {
      SCOPED_TRACE(length);
      const InModalLoop answer([&] {
        const HWND box = FindOwnWindow(L"#32770");
        ExpectPartsApart(box);
        PostMessageW(box, WM_COMMAND, type == MB_YESNO ? IDNO : IDOK, 0);
      });
      const int answered = MessageBoxW(nullptr, text.substr(0, length).c_str(), L"Exit", type);
      EXPECT_EQ(answered, type == MB_YESNO ? IDNO : IDOK);
    }
  }
}

}  // namespace
}  // namespace tidewell
