// What the program asks the user over whatever is on the screen. Tests answer in the user's place.
#pragma once

#include <optional>
#include <string>

namespace tidewell {

class UserDialogs {
 public:
  virtual ~UserDialogs() = default;
  virtual void ShowMessage(const std::wstring& text, const std::wstring& caption) = 0;
  // The full path of the chosen folder or file; nothing when cancelled. Begins at `present`.
  virtual std::optional<std::wstring> ChooseFolder(const std::wstring& title,
                                                   const std::wstring& present) = 0;
  // `pattern` tells the files to choose from: "*.exe".
  virtual std::optional<std::wstring> ChooseFile(const std::wstring& title,
                                                 const std::wstring& present,
                                                 const std::wstring& pattern) = 0;
};

}  // namespace tidewell
