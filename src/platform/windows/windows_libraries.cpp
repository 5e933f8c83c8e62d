#include "platform/windows/windows_libraries.h"

#include <windows.h>

#include <string_view>

#include "platform/library_check.h"

namespace tidewell {

namespace {

constexpr int kTextsInBlock = 16;

// A broken library is our caller's to deal with; without this the system shows a message box.
class QuietErrors {
 public:
  QuietErrors() : before_(SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX)) {}
  ~QuietErrors() { SetErrorMode(before_); }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

 private:
  UINT before_;
};

class WindowsLibrary final : public ResourceLibrary {
 public:
  explicit WindowsLibrary(HMODULE module) : module_(module) {}
  ~WindowsLibrary() override { FreeLibrary(module_); }
  WindowsLibrary(const WindowsLibrary&) = delete;
  WindowsLibrary& operator=(const WindowsLibrary&) = delete;

  std::optional<std::wstring> FindText(int id) const override {
    if (id < 0 || id > 0xFFFF) return std::nullopt;
    std::wstring_view rest = BlockOf(id);
    for (int before = id % kTextsInBlock;; --before) {
      if (rest.empty() || rest.size() - 1 < rest[0]) return std::nullopt;
      const std::wstring_view text = rest.substr(1, rest[0]);
      if (before == 0) return text.empty() ? std::nullopt : std::optional<std::wstring>(text);
      rest.remove_prefix(1 + text.size());
    }
  }
  void* Handle() const override { return module_; }

 private:
  // A block's texts, each behind its length. LoadString goes by the lengths without looking where
  // the block ends; a damaged one would lead it out of the library.
  std::wstring_view BlockOf(int id) const {
    const auto number = static_cast<WORD>(id / kTextsInBlock + 1);
    const HRSRC found = FindResourceW(module_, MAKEINTRESOURCEW(number), RT_STRING);
    const HGLOBAL block = found ? LoadResource(module_, found) : nullptr;
    if (!block) return {};
    return {static_cast<const wchar_t*>(LockResource(block)),
            SizeofResource(module_, found) / sizeof(wchar_t)};
  }

  HMODULE module_;
};

}  // namespace

std::unique_ptr<ResourceLibrary> WindowsLibraries::Load(const std::wstring& path) {
  if (!IsWholeLibrary(files_, path)) return nullptr;
  const QuietErrors quiet;
  const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  return module ? std::make_unique<WindowsLibrary>(module) : nullptr;
}

}  // namespace tidewell
