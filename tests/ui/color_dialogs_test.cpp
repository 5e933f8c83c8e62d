#include <aygshell.h>
#include <gtest/gtest.h>

#include "tests/support/test_device.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"
#include "ui/color_picker_model.h"
#include "ui/windows/color_picker.h"
#include "ui/windows/font_dialog.h"

namespace tidewell {
namespace {

HWND Item(int id) {
  return GetDlgItem(FrontDialog(), id);
}

// The picker's view, numbers and digits; the font dialog's size and checked boxes; and the number
// of the control with the focus. Or a message box's text.
std::wstring Shown() {
  if (!Item(100)) return CaptionOf(FrontDialog()) + L": " + CaptionOf(ControlOf(WC_EDITW));
  std::wstring shown;
  if (Item(130)) {
    shown = FormatDecimal(static_cast<int>(SendMessageW(Item(100), TCM_GETCURSEL, 0, 0)));
    for (const int id : {130, 131, 132, 102}) shown += L" " + CaptionOf(Item(id));
  } else {
    shown = CaptionOf(Item(101));
    for (int id = 110; id < 114; ++id) {
      if (SendMessageW(Item(id), BM_GETCHECK, 0, 0)) shown += L" " + FormatDecimal(id - 110);
    }
  }
  return shown + L" @" + FormatDecimal(GetDlgCtrlID(GetFocus()));
}

std::function<void()> Type(const std::wstring& text) {
  return [text] { SetWindowTextW(GetFocus(), text.c_str()); };
}
std::function<void()> Command(int id) {
  return [id] { PostMessageW(FrontDialog(), WM_COMMAND, static_cast<WPARAM>(id), 0); };
}

class ColorDialogsTest : public testing::Test, protected TestDevice {
 protected:
  Color Pick(Color color, bool allowsDefault, std::initializer_list<DialogDriver::Step> steps) {
    driver.Play(steps);
    const int confirmed = RunColorPicker(dialog, color, allowsDefault);
    EXPECT_EQ(confirmed, color == kColorCancelled ? 0 : 1);
    return color;
  }

  DialogContext dialog{nullptr, machine, language, scale};
  DialogDriver driver{Shown};
};

TEST_F(ColorDialogsTest, AColorIsChosenInEachViewWithKeysAlone) {
  EXPECT_EQ(Pick(0x332211, true,
                 {{Key(VK_END), L"0 255 34 51 FF2233 @120"},
                  {Key(VK_DOWN), L"0 255 34 51 FF2233 @130"},
                  {Type(L"256"), L""},
                  {Key(VK_DOWN), L"Invalid value: Valid values are between 0-255"},
                  {Command(IDOK), L"0 255 34 51 FF2233 @121"},
                  {Command(1023), L"1 255 34 51 FF2233 @102"},
                  {Type(L"ff80"), L""},
                  {Key(VK_DOWN), L"1 255 128 51 FF8033 @100"},
                  {Key(VK_RIGHT), L"2 255 128 51 FF8033 @0"},
                  {Key(VK_DOWN), L"2 255 128 51 FF8033 @10"},
                  {Key(VK_RIGHT), L"2 255 128 51 FF8033 @11"},
                  {Key(VK_RETURN), L"2 102 102 255 6666FF @11"},
                  {Key(VK_UP), L""},
                  {Key(VK_UP), L"2 102 102 255 6666FF @100"},
                  {TapLeftKey, L""}}),
            0xFF6666u);
}

TEST_F(ColorDialogsTest, TheSwatchesOfTheKeysNumbersAreChosenAndLeftLikeAnyOther) {
  const auto tap = [](int id) { return [=] { PostTap(Item(id), {4, 4}); }; };
  EXPECT_EQ(Pick(0, false,
                 {{Command(1024), L"2 0 0 0 000000 @0"},
                  {tap(IDOK), L"2 204 204 255 CCCCFF @1"},
                  {tap(IDCANCEL), L"2 153 204 255 99CCFF @2"},
                  {Key(VK_ESCAPE), L""}}),
            kColorCancelled);
  // As the dialog's loop says it where no control has the focus.
  const auto cancel = [] {
    PostMessageW(FrontDialog(), WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(Item(IDCANCEL)));
  };
  EXPECT_EQ(Pick(5, false, {{cancel, L""}}), kColorCancelled);
  EXPECT_EQ(Pick(5, false, {{Command(1020), L""}}), kColorCancelled);
}

TEST_F(ColorDialogsTest, PassedFieldsKeepTheDefaultAndANumberBeingTypedIsConfirmedWithTheRest) {
  const auto expectMenu = [](int entries, UINT marked) {
    return [=] {
      const auto bar = SendMessageW(SHFindMenuBar(FrontDialog()), SHCMBM_GETMENU, 0, 0);
      const HMENU menu = GetSubMenu(reinterpret_cast<HMENU>(bar), 1);
      EXPECT_EQ(GetMenuItemCount(menu), entries);
      EXPECT_TRUE(GetMenuState(menu, marked, MF_BYCOMMAND) & MF_CHECKED);
    };
  };
  const auto expectBand = [] {
    UpdateWindow(FrontDialog());
    SendMessageW(FrontDialog(), WM_HSCROLL, TB_THUMBTRACK, LPARAM(Item(120)));
    RECT area{};
    GetUpdateRect(FrontDialog(), &area, FALSE);
    EXPECT_EQ(area.top, ClientArea(FrontDialog()).bottom - 24);
  };
  EXPECT_EQ(Pick(kNoColor, true,
                 {{Key(VK_DOWN), L""},
                  {Command(1023), L""},
                  {Command(1024), L""},
                  {expectMenu(6, 1024), L""},
                  {TapLeftKey, L""}}),
            kNoColor);
  EXPECT_EQ(Pick(255, false,
                 {{expectMenu(5, 1022), L""},
                  {Command(1021), L""},
                  {expectBand, L"0 255 0 0 FF0000 @120"},
                  {Key(VK_DOWN), L""},
                  {Type(L"999"), L""},
                  {TapLeftKey, L"Invalid value: Valid values are between 0-255"},
                  {Command(IDOK), L"0 255 0 0 FF0000 @130"},
                  {Type(L"16"), L""},
                  {TapLeftKey, L""}}),
            16u);
}

TEST_F(ColorDialogsTest, AFontIsEditedWithKeysAndKeepsAColorThatWasConfirmedBeforeACancel) {
  LogFont font{.height = 12, .weight = 400, .faceName = L"Tahoma"};
  Color color = kNoColor;
  driver.Play({{[] { EXPECT_EQ(SendMessageW(Item(101), CB_GETMINVISIBLE, 0, 0), 5); }, L"12 @101"},
               {Key(VK_RIGHT), L"13 @101"},
               {Key(VK_DOWN), L""},
               {Key(VK_RETURN), L"13 0 @110"},
               {TapLeftKey, L""}});
  EXPECT_EQ(RunFontDialog(dialog, font, color), 1);
  const LogFont edited{.height = 13, .weight = 700, .faceName = L"Tahoma"};
  EXPECT_EQ(font, edited);

  driver.Play({{Key(VK_LEFT), L"12 0 @101"},
               {Key(VK_UP), L"12 0 @103"},
               {Key(VK_RETURN), L"0 255 255 255 FFFFFF @120"},
               {Key(VK_HOME), L""},
               {TapLeftKey, L"12 0 @103"},
               {TapRightKey, L""}});
  EXPECT_EQ(RunFontDialog(dialog, font, color), 0);
  EXPECT_EQ(font, edited);
  EXPECT_EQ(color, 0xFFFF00u);
}

}  // namespace
}  // namespace tidewell
