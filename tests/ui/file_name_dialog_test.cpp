#include "ui/file_name_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

using testing::ElementsAre;

HWND NameField() {
  return ControlOf(WC_EDITW);
}

void ExpectPartsWithin(HWND box) {
  EXPECT_LE(WindowRect(box).right, GetSystemMetrics(SM_CXSCREEN));
  for (HWND part = GetWindow(box, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
    if (!IsWindowVisible(part)) continue;
    EXPECT_LE(PlaceInDialog(part).right, ClientRect(box).right);
    EXPECT_LE(PlaceInDialog(part).bottom, ClientRect(box).bottom);
  }
}

class FileNameDialogTest : public testing::Test {
 protected:
  FileNameDialogTest() {
    request.title = L"Export TW Settings";
    request.folder = L"\\My Documents";
    request.extension = L"twsb";
    request.typeLabel = L"TW Settings Backup (twsb)";
    request.initialName = L"TW_Backup_2026_11_15";
    memory.files.Put(L"\\My Documents\\zoo.twsb\\");
    memory.files.Put(L"\\My Documents\\may.twsb");
    memory.files.Put(L"\\My Documents\\april.twsb");
    memory.files.Put(L"\\My Documents\\letter.txt");
  }

  int Run() { return RunFileNameDialog(context, request); }

  // Confirms a name that is refused with a message, and then cancels.
  void ExpectRefusal(const wchar_t* name, const wchar_t* message) {
    driver.Then([=] {
      SetWindowTextW(NameField(), name);
      TapLeftKey();
    });
    driver.Then([=] {
      EXPECT_EQ(CaptionOf(FrontDialog()), L"File Name Error");
      EXPECT_NE(FindWindowExW(FrontDialog(), nullptr, WC_STATICW, message), nullptr);
      ExpectPartsWithin(FrontDialog());
      PostMessageW(FrontDialog(), WM_COMMAND, IDOK, 0);
    });
    driver.Then([=] {
      EXPECT_EQ(CaptionOf(FrontDialog()), L"Export TW Settings");
      EXPECT_EQ(CaptionOf(NameField()), name);
      TapRightKey();
    });
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(request.resultPath, L"");
  }

  MemoryMachine memory;
  Machine machine = memory.Door();
  ScreenScale scale{96, 96, false};
  DialogContext context{nullptr, machine, nullptr, scale};
  FileNameRequest request;
  DialogDriver driver;
};

TEST_F(FileNameDialogTest, ShowsTheRequestAndConfirmsItByTheLeftKey) {
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FrontDialog()), L"Export TW Settings");
    EXPECT_EQ(CaptionOf(ControlOf(WC_STATICW, 0)), L"File Name");
    EXPECT_EQ(CaptionOf(NameField()), L"TW_Backup_2026_11_15");
    EXPECT_EQ(CaptionOf(ControlOf(WC_STATICW, 1)), L"Extension");
    EXPECT_EQ(CaptionOf(ControlOf(WC_EDITW, 1)), L"TW Settings Backup (twsb)");
    EXPECT_EQ(CaptionOf(ControlOf(WC_STATICW, 2)), L"\\My Documents");
    EXPECT_THAT(RowsOfList(), ElementsAre(L"zoo.twsb", L"april.twsb", L"may.twsb"));
    EXPECT_EQ(GetFocus(), List());
    TapLeftKey();
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\TW_Backup_2026_11_15.twsb");
}

TEST_F(FileNameDialogTest, ReturnInTheFieldConfirmsNoMoreThanTheLongestName) {
  driver.Then([] {
    SetFocus(NameField());
    SetWindowTextW(NameField(), std::wstring(300, L'n').c_str());
    Press(VK_RETURN);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\" + std::wstring(256, L'n') + L".twsb");
}

TEST_F(FileNameDialogTest, RefusesAMissingAndAnIllegalNameAndStaysOpen) {
  ExpectRefusal(L"", L"File name value is missing");
  ExpectRefusal(L"a/b", L"File name include illegal characters");
}

TEST_F(FileNameDialogTest, ActivatingTakesAFileAsItStandsAndNothingElse) {
  driver.Then([] { Press(VK_RETURN); });
  driver.Then([] { DoubleTapRow(0); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(), 0);
    Press(VK_RETURN);
    Press(VK_DOWN);
  });
  driver.Then([] { Press(VK_RETURN); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\april.twsb");

  driver.Then([] { DoubleTapRow(2); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\may.twsb");
}

TEST_F(FileNameDialogTest, UpLeavesTheListOnlyWhileNothingIsMarkedThere) {
  driver.Then([] { Press(VK_UP); });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), NameField());
    Press(VK_DOWN);
  });
  driver.Then([] { Press(VK_DOWN); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(), 0);
    Press(VK_UP);
  });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), List());
    Press(VK_TAB);
  });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), NameField());
    Press(VK_ESCAPE);
  });
  EXPECT_EQ(Run(), 0);
}

TEST_F(FileNameDialogTest, AMarkedFileNamesItselfInAFieldThatIsFree) {
  request.initialName.clear();
  driver.Then([] { TapRow(1); });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(NameField()), L"april");
    TapRow(2);
  });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(NameField()), L"may");
    SetWindowTextW(NameField(), L"june");
    TapRow(1);
  });
  driver.Then([] { TapLeftKey(); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\june.twsb");
}

void ExpectLayout(bool hasExtension, const ScreenScale& scale) {
  const RECT client = ClientRect(FrontDialog());
  const FileNameLayout layout =
      LayOutFileNameDialog(client.right, client.bottom, hasExtension, scale);
  const auto expectPlace = [](HWND control, const DialogPlace& place) {
    const RECT found = PlaceInDialog(control);
    EXPECT_EQ(
        (DialogPlace{found.left, found.top, found.right - found.left, found.bottom - found.top}),
        place);
  };
  expectPlace(ControlOf(WC_STATICW, 0), layout.nameLabel);
  expectPlace(NameField(), layout.nameField);
  if (hasExtension) expectPlace(ControlOf(WC_EDITW, 1), layout.extensionField);
  expectPlace(ControlOf(WC_STATICW, hasExtension ? 2 : 1), layout.folder);
  expectPlace(List(), layout.list);
}

TEST_F(FileNameDialogTest, LaysItsControlsOutForEveryScreen) {
  driver.Then([this] {
    ExpectLayout(true, scale);
    SetWindowPos(FrontDialog(), nullptr, 0, 26, 240, 188, 0);
  });
  driver.Then([this] {
    ExpectLayout(true, scale);
    Press(VK_ESCAPE);
  });
  Run();

  request.extension.clear();
  driver.Then([this] {
    ExpectLayout(false, scale);
    Press(VK_ESCAPE);
  });
  Run();
}

}  // namespace
}  // namespace tidewell
