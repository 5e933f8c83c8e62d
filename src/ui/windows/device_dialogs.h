// What the program asks the user, as message boxes and dialogs over the whole screen. Windows only.
#pragma once

#include <functional>
#include <utility>

#include "ui/user_dialogs.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

class DeviceDialogs final : public UserDialogs {
 public:
  // `context` tells for each dialog what is beneath it then.
  explicit DeviceDialogs(std::function<DialogContext()> context) : context_(std::move(context)) {}

  void ShowMessage(const std::wstring& text, const std::wstring& caption) override;
  bool Ask(const std::wstring& question, const std::wstring& caption, bool byDefault) override;
  std::optional<std::wstring> ChooseFolder(const std::wstring& title,
                                           const std::wstring& present) override;
  std::optional<std::wstring> ChooseFile(const std::wstring& title, const std::wstring& present,
                                         const std::wstring& pattern) override;
  bool ChooseFileName(FileNameRequest& request) override;
  std::optional<Color> ChooseColor(Color present, bool allowsDefault) override;
  bool ChooseFont(LogFont& font, Color& color) override;
  std::optional<std::size_t> ChooseLine(const LineRequest& request) override;
  bool TickLines(TickRequest& request) override;
  std::optional<std::wstring> EnterText(const TextRequest& request) override;

 private:
  std::function<DialogContext()> context_;
};

}  // namespace tidewell
