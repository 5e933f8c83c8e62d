#include "ui/windows/file_name_dialog.h"

#include <gtest/gtest.h>

#include "tests/support/test_device.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

HWND NameField() {
  return ControlOf(WC_EDITW);
}

// The name, with a cursor while it has the focus, and the rows; or a message box's text.
std::wstring Shown() {
  if (!List()) return CaptionOf(FrontDialog()) + L": " + CaptionOf(ControlOf(WC_EDITW));
  return CaptionOf(NameField()) + (GetFocus() == NameField() ? L"_:" : L":") + RowsShown();
}

std::function<void()> Type(const std::wstring& name) {
  return [name] { SetWindowTextW(NameField(), name.c_str()); };
}

void CloseMessage() {
  PostMessageW(FrontDialog(), WM_COMMAND, IDOK, 0);
}

class FileNameDialogTest : public testing::Test, protected TestDevice {
 protected:
  FileNameDialogTest() {
    request.title = L"Export TW Settings";
    request.folder = L"\\My Documents";
    request.extension = L"twsb";
    request.typeLabel = L"TW Settings Backup (twsb)";
    request.initialName = L"first";
    for (const wchar_t* name : {L"zoo.twsb\\", L"may.twsb", L"april.twsb", L"letter.txt"}) {
      files.Put(L"\\My Documents\\" + std::wstring(name));
    }
  }

  // The path that the dialog confirms once these steps are played; empty when it is cancelled.
  std::wstring Run(std::initializer_list<DialogDriver::Step> steps) {
    driver.Play(steps);
    request.resultPath.clear();
    const int confirmed = RunFileNameDialog(dialog, request);
    EXPECT_EQ(confirmed, request.resultPath.empty() ? 0 : 1);
    return request.resultPath;
  }

  DialogContext dialog{nullptr, machine, language, scale};
  FileNameRequest request;
  DialogDriver driver{Shown};
};

TEST_F(FileNameDialogTest, ShowsTheRequestAndConfirmsTheNameByTheLeftKeyOrReturn) {
  const auto expectCaptions = [] {
    EXPECT_EQ(CaptionOf(FrontDialog()), L"Export TW Settings");
    EXPECT_EQ(CaptionOf(ControlOf(WC_EDITW, 1)), L"TW Settings Backup (twsb)");
    EXPECT_EQ(CaptionOf(ControlOf(WC_STATICW, 2)), L"\\My Documents");
  };
  EXPECT_EQ(Run({{expectCaptions, L"first: zoo.twsb, april.twsb, may.twsb"}, {TapLeftKey, L""}}),
            L"\\My Documents\\first.twsb");
  EXPECT_EQ(Run({{[] { SetFocus(NameField()); }, L""}, {Key(VK_RETURN), L""}}),
            L"\\My Documents\\first.twsb");
  const auto disable = [] {
    SendMessageW(SHFindMenuBar(FrontDialog()), TB_ENABLEBUTTON, IDOK, FALSE);
  };
  EXPECT_EQ(Run({{disable, L""},
                 {TapLeftKey, L"first: zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_ESCAPE), L""}}),
            L"");
}

TEST_F(FileNameDialogTest, RefusesAMissingAndAnIllegalNameAndStaysOpen) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"", L"File name value is missing"}, {L"a/b", L"File name include illegal characters"}};
  for (const auto& [name, message] : cases) {
    EXPECT_EQ(Run({{Type(name), L""},
                   {TapLeftKey, L"File Name Error: " + message},
                   {CloseMessage, name + L": zoo.twsb, april.twsb, may.twsb"},
                   {TapRightKey, L""}}),
              L"");
  }
}

TEST_F(FileNameDialogTest, ActivatingTakesAFileAsItStandsAndNothingElse) {
  EXPECT_EQ(Run({{Key(VK_RETURN), L"first: zoo.twsb, april.twsb, may.twsb"},
                 {DoubleTapRow(0), L"first: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_DOWN), L"first: zoo.twsb, >april.twsb, may.twsb"},
                 {Key(VK_RETURN), L""}}),
            L"\\My Documents\\april.twsb");
  EXPECT_EQ(Run({{DoubleTapRow(2), L""}}), L"\\My Documents\\may.twsb");
}

TEST_F(FileNameDialogTest, UpLeavesTheListOnlyWhileNothingIsMarkedThere) {
  EXPECT_EQ(Run({{Key(VK_UP), L"first_: zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_DOWN), L"first: zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_DOWN), L"first: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_UP), L"first: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_TAB), L"first_: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_ESCAPE), L""}}),
            L"");
}

TEST_F(FileNameDialogTest, AMarkedFileNamesItselfInAFieldThatIsFree) {
  request.initialName.clear();
  EXPECT_EQ(Run({{TapRow(1), L"april: zoo.twsb, >april.twsb, may.twsb"},
                 {TapRow(2), L"may: zoo.twsb, april.twsb, >may.twsb"},
                 {Type(L"june"), L""},
                 {TapRow(1), L"june: zoo.twsb, >april.twsb, may.twsb"},
                 {TapLeftKey, L""}}),
            L"\\My Documents\\june.twsb");
}

TEST_F(FileNameDialogTest, FillsWhateverScreenItIsTurnedTo) {
  const auto turn = [] { SetWindowPos(FrontDialog(), nullptr, 0, 26, 240, 188, 0); };
  const auto expectLayout = [this] {
    const DialogPlace wanted = LayOutFileNameDialog(240, 188, true, scale).list;
    const RECT list = PlaceInDialog(List());
    EXPECT_EQ((DialogPlace{list.left, list.top, list.right - list.left, list.bottom - list.top}),
              wanted);
  };
  Run({{turn, L""}, {expectLayout, L""}, {Key(VK_ESCAPE), L""}});
}

}  // namespace
}  // namespace tidewell
