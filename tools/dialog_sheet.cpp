// Opens the dialogs that pages ask for a colour or a font, one view after another, and the messages
// that only a failing device brings; says "picture NAME" for each and waits as the tour does.
#include <windows.h>

#include <aygshell.h>

#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"
#include "resources/text/text_ids.h"
#include "settings/settings_store.h"
#include "ui/file_advice.h"
#include "ui/windows/color_picker.h"
#include "ui/windows/font_dialog.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr UINT kPeriod = 30;  // milliseconds
constexpr int kViewCommand = 1022;

using Open = std::function<void(const DialogContext&)>;
using Step = std::function<void(HWND dialog)>;

struct View {
  const char* name;
  Open open;
  std::vector<Step> steps;
};

Open Picker(Color color, bool allowsDefault = true) {
  return [=](const DialogContext& context) {
    Color chosen = color;
    RunColorPicker(context, chosen, allowsDefault);
  };
}

Open FontOf(std::int32_t height, Color color) {
  return [=](const DialogContext& context) {
    LogFont font{.height = height, .weight = 700, .faceName = L"Tahoma"};
    Color chosen = color;
    RunFontDialog(context, font, chosen);
  };
}

// What is told in several paragraphs; a text's advice stands behind it.
Open Message(int captionId, std::vector<std::pair<int, FileStatus>> paragraphs,
             UINT buttons = MB_OK) {
  return [=](const DialogContext& context) {
    std::wstring text;
    for (const auto& [textId, cause] : paragraphs) {
      text += (text.empty() ? L"" : L"\n\n") + WithAdvice(context.language, textId, cause);
    }
    const std::wstring caption = context.language.Text(captionId, L"TW Options");
    MessageBoxW(nullptr, text.c_str(), caption.c_str(), buttons);
  };
}

Step Command(int id) {
  return [=](HWND dialog) { PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0); };
}

Step Press(WPARAM key) {
  return [=](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, key, 1); };
}

void TypeTooMuch(HWND) {
  SetWindowTextW(GetFocus(), L"256");
}

void OpenMenu(HWND dialog) {
  const HWND bar = SHFindMenuBar(dialog);
  PostMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(ClientArea(bar).right - 2, 2));
}

const View kViews[] = {
    {"picker-1", Picker(Rgb(51, 102, 204)), {}},
    {"picker-1-field", Picker(Rgb(51, 102, 204), false), {Press(VK_DOWN)}},
    {"picker-1-default", Picker(kNoColor), {}},
    {"picker-2", Picker(Rgb(255, 128, 0)), {Command(kViewCommand + 1)}},
    {"picker-3", Picker(Rgb(204, 0, 102)), {Command(kViewCommand + 2), Press(VK_DOWN)}},
    {"picker-tabs", Picker(kWhite), {Press(VK_UP), Press(VK_UP)}},
    {"picker-to-default", Picker(kWhite), {Press(VK_UP)}},
    {"picker-menu", Picker(kWhite), {OpenMenu}},
    {"picker-refused", Picker(kWhite), {Press(VK_DOWN), TypeTooMuch, Press(VK_DOWN)}},
    {"font", FontOf(12, Rgb(0, 102, 51)), {}},
    {"font-bright", FontOf(22, kWhite), {Press(VK_DOWN), Press(VK_DOWN)}},
    {"font-largest", FontOf(30, kNoColor), {Press(VK_UP)}},
    {"font-list", FontOf(14, kNoColor), {Press(VK_RETURN)}},
    {"start-failed", Message(0, {{IDS_START_FAILED, FileStatus::kOk}}), {}},
    {"export-full",
     Message(IDS_EXPORT_DONE_CAPTION,
             {{IDS_EXPORT_DONE, FileStatus::kOk}, {IDS_EXPORT_NOT_WRITTEN, FileStatus::kFull}}),
     {}},
    {"import-no-copy",
     Message(
         IDS_IMPORT_QUESTION_CAPTION,
         {{IDS_IMPORT_NO_COPY, FileStatus::kFull}, {IDS_IMPORT_NO_COPY_QUESTION, FileStatus::kOk}},
         MB_YESNO | MB_DEFBUTTON2),
     {}},
    {"import-in-part",
     Message(IDS_IMPORT_FAILED_CAPTION,
             {{IDS_IMPORT_FAILED, FileStatus::kOk}, {IDS_IMPORT_IN_PART, FileStatus::kOk}}),
     {}},
    {"import-without-filters",
     Message(IDS_IMPORT_DONE_CAPTION,
             {{IDS_IMPORT_DONE, FileStatus::kOk}, {IDS_FILTERS_NOT_WRITTEN, FileStatus::kRefused}}),
     {}},
    {"scheme-full",
     Message(IDS_SCHEME_NOT_SAVED_CAPTION, {{IDS_SCHEME_NOT_SAVED, FileStatus::kFull}}),
     {}},
};

class DialogSheet {
 public:
  DialogSheet() {
    sheet = this;
    Machine door = machine_.Door();
    settings_.Load(door, scale_, language_);
    SetMessageBoxWords({language_.Text(IDS_OK), language_.Text(IDS_CANCEL), language_.Text(IDS_YES),
                        language_.Text(IDS_NO)});
  }

  bool ShowAll() {
    Machine door = machine_.Door();
    for (const View& view : kViews) {
      view_ = &view;
      nextStep_ = 0;
      const UINT_PTR timer = SetTimer(nullptr, 0, kPeriod, OnTimer);
      view.open({nullptr, door, language_, scale_});
      KillTimer(nullptr, timer);
    }
    return !isAbandoned_;
  }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) { sheet->Turn(); }

  // One step at a turn; then the picture, then whatever is open is closed.
  void Turn() {
    const HWND dialog = GetActiveWindow();
    if (nextStep_ < view_->steps.size()) {
      view_->steps[nextStep_++](dialog);
    } else if (nextStep_ == view_->steps.size()) {
      ++nextStep_;
    } else {
      if (nextStep_++ == view_->steps.size() + 1) Say();
      EndMenu();
      for (const WPARAM refusal : {IDCANCEL, IDNO}) PostMessageW(dialog, WM_COMMAND, refusal, 0);
    }
  }

  void Say() {
    std::printf("picture dialog-%s\n", view_->name);
    std::fflush(stdout);
    char answer[16];
    isAbandoned_ |= std::fgets(answer, sizeof answer, stdin) == nullptr;
  }

  static inline DialogSheet* sheet = nullptr;

  WindowsMachine machine_;
  ScreenScale scale_{machine_.system.Screen().dpiX, machine_.system.Screen().dpiY, false};
  SettingsStore settings_;
  Language language_;
  const View* view_ = nullptr;
  std::size_t nextStep_ = 0;
  bool isAbandoned_ = false;
};

}  // namespace

}  // namespace tidewell

int main() {
  tidewell::InstallDeviceShell();
  if (!tidewell::DialogSheet().ShowAll()) return 1;
  std::puts("end of the sheets");
}
