// The strip and its tooltip as real windows.
#include "ui/windows/icon_marker.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_libraries.h"
#include "resources/text/text_ids.h"
#include "tests/support/window_support.h"

namespace tidewell {
namespace {

constexpr MarkerChoice kChoices[] = {
    {1, IDS_ICON_REMINDER, 1}, {2, IDS_ICON_PRIVATE, 2}, {8, IDS_ICON_NOTE, 3}};

class Marker : public testing::Test {
 protected:
  void Show(MarkerMode mode, std::uint32_t current) {
    MemoryLibraries libraries;
    libraries.Put(L"T", {{IDS_ICON_REMINDER, L"Reminder"}, {IDS_ICON_NOTE, L"Note"}});
    Language language;
    language.Load(libraries, L"T", {});
    marker_.emplace(host_.Get(), POINT{100, 60}, 77, 5,
                    IconMarkerModel(mode, kChoices, current, language), nullptr, ScreenScale());
    ShowWindow(marker_->Window(), SW_SHOW);
  }
  void Send(UINT message, WPARAM wParam = 0, POINT point = {}) const {
    SendMessageW(marker_->Window(), message, wParam, MAKELPARAM(point.x, point.y));
  }
  // What the host was told, as "message value"; forgets it.
  std::string Told() {
    std::string told;
    for (const TestWindow::Message& each : std::exchange(host_.messages, {})) {
      if (each.id < 1788 || each.id > 1789) continue;
      told += std::to_string(each.id) + " " + std::to_string(each.wParam) + ", ";
      EXPECT_EQ(each.lParam, 77);
    }
    return told;
  }
  static std::wstring NameShown() {
    const HWND name = FindOwnWindow(L"ToolTipWindow");
    return name && IsWindowVisible(name) ? CaptionOf(name) : L"";
  }

  TestWindow host_{WS_POPUP | WS_VISIBLE, 0, {0, 0, 240, 200}};
  std::optional<IconMarker> marker_;
};

TEST_F(Marker, OfManyIsTappedOrWorkedByKeysAndNamesWhatIsMeant) {
  Show(MarkerMode::kMany, 2);
  marker_->SetDisabled(8);
  Send(WM_LBUTTONDOWN, MK_LBUTTON, {3, 4});
  const HWND name = FindOwnWindow(L"ToolTipWindow");
  EXPECT_EQ(NameShown(), L"") << "not yet";
  EXPECT_EQ(WindowRect(name).right, 101);
  EXPECT_EQ(WindowRect(name).bottom, 62);
  Send(WM_TIMER, 9979);
  EXPECT_EQ(NameShown(), L"Reminder");
  PumpMessages();
  EXPECT_EQ(Screenshot(name).At(1, 1), RGB(247, 246, 220));
  EXPECT_EQ(Screenshot(marker_->Window()).At(5, 5), RGB(80, 90, 170));
  Send(WM_TIMER, 9980);
  EXPECT_EQ(NameShown(), L"");
  Send(WM_LBUTTONUP);
  EXPECT_FALSE(IsWindow(name));
  Send(WM_LBUTTONDOWN, MK_LBUTTON, {48, 4});
  EXPECT_FALSE(FindOwnWindow(L"ToolTipWindow")) << "beside the cells";
  EXPECT_EQ(Told(), "1788 0, 1788 0, ");
  Show(MarkerMode::kMany, 2);
  marker_->SetDisabled(8);
  SetFocus(marker_->Window());
  PumpMessages();
  EXPECT_EQ(Screenshot(marker_->Window()).At(1, 1), RGB(255, 160, 0)) << "shows it";
  for (const WPARAM key : {VK_LEFT, VK_SPACE, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RETURN}) {
    PressKey(marker_->Window(), key);
  }
  EXPECT_EQ(NameShown(), L"Note");
  EXPECT_EQ(marker_->Model().Value(), 3u) << "what is disabled stays so";
  SetFocus(host_.Get());
  EXPECT_EQ(NameShown(), L"");
}

TEST_F(Marker, OfOneIsChosenFromAMenuBelowIt) {
  Show(MarkerMode::kOne, 8);
  RECT menu{};
  const auto choose = [&](std::initializer_list<WPARAM> keys) {
    const InModalLoop inMenu([&] {
      menu = WindowRect(FindOwnWindow(L"#32768"));
      for (const WPARAM key : keys) PostMessageW(marker_->Window(), WM_KEYDOWN, key, 1);
    });
    Send(WM_LBUTTONDOWN, MK_LBUTTON, {3, 4});
    PumpMessages();
  };
  choose({VK_ESCAPE});
  EXPECT_EQ(Told(), "") << "left alone";
  EXPECT_EQ(menu.left, 100);
  EXPECT_EQ(menu.top, 78);
  choose({VK_DOWN, VK_DOWN, VK_RETURN});
  EXPECT_EQ(Told(), "1789 1, ");
  EXPECT_EQ(marker_->Model().Value(), 1u);
  WNDCLASSW found;
  marker_.reset();
  EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), kIconMarkerClass, &found));
}

}  // namespace
}  // namespace tidewell
