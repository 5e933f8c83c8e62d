#include "ui/file_name_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

using testing::ElementsAre;

HWND NameField() {
  return ControlOf(WC_EDITW);
}

void ExpectWithinScreen(HWND box) {
  const RECT place = PlaceIn(box, nullptr);
  EXPECT_GE(place.left, 0);
  EXPECT_LE(place.right, GetSystemMetrics(SM_CXSCREEN));
  for (HWND part = GetWindow(box, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
    if (IsWindowVisible(part)) {
      EXPECT_LE(PlaceIn(part, nullptr).right, place.right);
      EXPECT_LE(PlaceIn(part, nullptr).bottom, place.bottom);
    }
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
      TapSoftKey(0);
    });
    driver.Then([=] {
      EXPECT_EQ(TextOfWindow(FrontDialog()), L"File Name Error");
      EXPECT_NE(FindWindowExW(FrontDialog(), nullptr, WC_STATICW, message), nullptr);
      ExpectWithinScreen(FrontDialog());
      PostMessageW(FrontDialog(), WM_COMMAND, IDOK, 0);
    });
    driver.Then([=] {
      EXPECT_EQ(TextOfWindow(FrontDialog()), L"Export TW Settings");
      EXPECT_EQ(TextOfWindow(NameField()), name);
      TapSoftKey(1);
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

TEST_F(FileNameDialogTest, ShowsTheRequestWithTheFocusInTheList) {
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FrontDialog()), L"Export TW Settings");
    EXPECT_EQ(TextOfWindow(ControlOf(WC_STATICW, 0)), L"File Name");
    EXPECT_EQ(TextOfWindow(NameField()), L"TW_Backup_2026_11_15");
    EXPECT_EQ(TextOfWindow(ControlOf(WC_STATICW, 1)), L"Extension");
    EXPECT_EQ(TextOfWindow(ControlOf(WC_EDITW, 1)), L"TW Settings Backup (twsb)");
    EXPECT_EQ(TextOfWindow(ControlOf(WC_STATICW, 2)), L"\\My Documents");
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"zoo.twsb", L"april.twsb", L"may.twsb"));
    EXPECT_EQ(GetFocus(), ListOf());
    TapSoftKey(1);
  });
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(request.resultPath, L"");
}

TEST_F(FileNameDialogTest, ConfirmsTheNameByTheLeftKeyAndByReturnInItsField) {
  driver.Then([] { TapSoftKey(0); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\TW_Backup_2026_11_15.twsb");

  driver.Then([] {
    SetFocus(NameField());
    SetWindowTextW(NameField(), L"a\\b");
    PressKey(VK_RETURN);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\a\\b.twsb");
}

TEST_F(FileNameDialogTest, RefusesAMissingAndAnIllegalNameAndStaysOpen) {
  ExpectRefusal(L"", L"File name value is missing");
  ExpectRefusal(L"a/b", L"File name include illegal characters");
}

TEST_F(FileNameDialogTest, AFileActivatedByKeyOrDoubleTapIsTakenAsItStands) {
  driver.Then([] { PressKey(VK_DOWN); });
  driver.Then([] { PressKey(VK_DOWN); });
  driver.Then([] { PressKey(VK_RETURN); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\april.twsb");

  driver.Then([] { DoubleTapRow(2); });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\may.twsb");
}

TEST_F(FileNameDialogTest, ActivatingAFolderOrNothingDoesNothing) {
  driver.Then([] { PressKey(VK_RETURN); });
  driver.Then([] { DoubleTapRow(0); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 0);
    PressKey(VK_RETURN);
  });
  driver.Then([] { TapSoftKey(1); });
  EXPECT_EQ(Run(), 0);
}

TEST_F(FileNameDialogTest, UpLeavesTheListOnlyWhileNothingIsMarkedThere) {
  driver.Then([] { PressKey(VK_UP); });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), NameField());
    PressKey(VK_DOWN);
  });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), ListOf());
    PressKey(VK_DOWN);
  });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 0);
    PressKey(VK_UP);
  });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), ListOf());
    PressKey(VK_TAB);
  });
  driver.Then([] {
    EXPECT_EQ(GetFocus(), NameField());
    PressKey(VK_ESCAPE);
  });
  EXPECT_EQ(Run(), 0);
}

TEST_F(FileNameDialogTest, AMarkedFileNamesItselfInAFieldThatIsFree) {
  request.initialName.clear();
  driver.Then([] { TapRow(1); });
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(NameField()), L"april");
    TapRow(2);
  });
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(NameField()), L"may");
    SetWindowTextW(NameField(), L"june");
    TapRow(1);
  });
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(NameField()), L"june");
    TapSoftKey(0);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\june.twsb");
}

class WithoutFolders final : public FileNameDialogModel {
 public:
  using FileNameDialogModel::FileNameDialogModel;

 protected:
  bool Lists(bool isFolder, const std::wstring&) const override { return !isFolder; }
};

TEST_F(FileNameDialogTest, ListsWhatACallersModelWants) {
  WithoutFolders model(memory.files, memory.locale, request);
  driver.Then([] {
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"april.twsb", L"may.twsb"));
    PressKey(VK_ESCAPE);
  });
  EXPECT_EQ(RunFileNameDialog(context, model), 0);
}

TEST_F(FileNameDialogTest, ReadsNoMoreThanTheLongestName) {
  driver.Then([] {
    SetWindowTextW(NameField(), std::wstring(300, L'n').c_str());
    TapSoftKey(0);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(request.resultPath, L"\\My Documents\\" + std::wstring(256, L'n') + L".twsb");
}

void ExpectPlace(HWND control, const DialogPlace& place) {
  const RECT found = PlaceIn(control, FrontDialog());
  EXPECT_EQ(found.left, place.x);
  EXPECT_EQ(found.top, place.y);
  EXPECT_EQ(found.right - found.left, place.width);
  EXPECT_EQ(found.bottom - found.top, place.height);
}

void ExpectLayout(bool hasExtension, const ScreenScale& scale) {
  RECT client{};
  GetClientRect(FrontDialog(), &client);
  const FileNameLayout layout =
      LayOutFileNameDialog(client.right, client.bottom, hasExtension, scale);
  ExpectPlace(ControlOf(WC_STATICW, 0), layout.nameLabel);
  ExpectPlace(NameField(), layout.nameField);
  if (hasExtension) ExpectPlace(ControlOf(WC_EDITW, 1), layout.extensionField);
  ExpectPlace(ControlOf(WC_STATICW, hasExtension ? 2 : 1), layout.folder);
  ExpectPlace(ListOf(), layout.list);
}

TEST_F(FileNameDialogTest, LaysItsControlsOutForEveryScreen) {
  driver.Then([this] {
    ExpectLayout(true, scale);
    SetWindowPos(FrontDialog(), nullptr, 0, 26, 240, 188, 0);
  });
  driver.Then([this] {
    ExpectLayout(true, scale);
    PressKey(VK_ESCAPE);
  });
  Run();

  request.extension.clear();
  driver.Then([this] {
    ExpectLayout(false, scale);
    PressKey(VK_ESCAPE);
  });
  Run();
}

}  // namespace
}  // namespace tidewell
