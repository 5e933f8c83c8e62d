#include "platform/windows/windows_libraries.h"

#include <windows.h>

namespace tidewell {

namespace {

constexpr int kTextCapacity = 1024;

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

  std::optional<std::wstring> FindText(std::uint32_t id) const override {
    wchar_t text[kTextCapacity];
    const int length = LoadStringW(module_, id, text, kTextCapacity);
    if (length <= 0) return std::nullopt;
    return std::wstring(text, static_cast<std::size_t>(length));
  }
  void* Handle() const override { return module_; }

 private:
  HMODULE module_;
};

}  // namespace

std::unique_ptr<ResourceLibrary> WindowsLibraries::Load(const std::wstring& path) {
  const QuietErrors quiet;
  const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
  return module ? std::make_unique<WindowsLibrary>(module) : nullptr;
}

}  // namespace tidewell
