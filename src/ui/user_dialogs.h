// What the program asks the user over whatever is on the screen. Tests answer in the user's place.
#pragma once

#include <optional>
#include <string>

#include "preview/color.h"
#include "settings/setting.h"
#include "ui/dialog_requests.h"
#include "ui/file_name_dialog_model.h"

namespace tidewell {

class UserDialogs {
 public:
  virtual ~UserDialogs() = default;
  virtual void ShowMessage(const std::wstring& text, const std::wstring& caption) = 0;
  // A question with Yes and No; `byDefault` is the answer of whoever just presses Enter.
  virtual bool Ask(const std::wstring& question, const std::wstring& caption, bool byDefault) = 0;
  // The full path of the chosen folder or file; nothing when cancelled. Begins at `present`.
  virtual std::optional<std::wstring> ChooseFolder(const std::wstring& title,
                                                   const std::wstring& present) = 0;
  // `pattern` tells the files to choose from: "*.exe".
  virtual std::optional<std::wstring> ChooseFile(const std::wstring& title,
                                                 const std::wstring& present,
                                                 const std::wstring& pattern) = 0;
  // Lets the user name a file in the request's folder. True when one was named: the request holds
  // its path.
  virtual bool ChooseFileName(FileNameRequest& request) = 0;
  // The colour that the user chose, kNoColor for the default one only where `allowsDefault`;
  // nothing when cancelled. Begins at `present`.
  virtual std::optional<Color> ChooseColor(Color present, bool allowsDefault) = 0;
  // Lets the user edit size, style and colour. False when cancelled: the font is as it was then,
  // but a colour that was confirmed in the picker before stays chosen.
  virtual bool ChooseFont(LogFont& font, Color& color) = 0;
  // The line that was taken; nothing when cancelled.
  virtual std::optional<std::size_t> ChooseLine(const LineRequest& request) = 0;
  // Lets the user tick the request's lines. False when cancelled: they are as they were.
  virtual bool TickLines(TickRequest& request) = 0;
  // The text that the request does not refuse; nothing when cancelled.
  virtual std::optional<std::wstring> EnterText(const TextRequest& request) = 0;
};

}  // namespace tidewell
