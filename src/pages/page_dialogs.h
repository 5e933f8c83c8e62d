// What a page asks the user over itself. Tests answer in the user's place.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "pages/page_context.h"

namespace tidewell {

class PageDialogs {
 public:
  virtual ~PageDialogs() = default;
  virtual void ShowMessage(HWND owner, const std::wstring& text, const std::wstring& caption) = 0;
  // The full path of the chosen folder; nothing when cancelled.
  virtual std::optional<std::wstring> ChooseFolder(HWND owner, const PageContext& context,
                                                   const std::wstring& title,
                                                   const std::wstring& present) = 0;
};

// Message boxes, and dialogs over the whole screen.
class DevicePageDialogs final : public PageDialogs {
 public:
  void ShowMessage(HWND owner, const std::wstring& text, const std::wstring& caption) override;
  std::optional<std::wstring> ChooseFolder(HWND owner, const PageContext& context,
                                           const std::wstring& title,
                                           const std::wstring& present) override;
};

}  // namespace tidewell
