// A folder of its own for one test, removed with all that is in it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/text.h"
#include "platform/windows/windows_files.h"

namespace tidewell {

class TestFolder {
 public:
  TestFolder() {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    const auto process = static_cast<std::int32_t>(GetCurrentProcessId());
    path_ = JoinPath(folder, L"TidewellBackup." + FormatDecimal(process));
    files_.MakeFolder(path_);
  }
  ~TestFolder() {
    for (const std::wstring& name : Names()) files_.Remove(Below(name));
    RemoveDirectoryW(path_.c_str());
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::wstring& Path() const { return path_; }
  std::wstring Below(const std::wstring& name) const { return JoinPath(path_, name); }
  bool Put(const std::wstring& name, std::span<const std::byte> bytes) {
    const auto stream = files_.OpenForWriting(Below(name));
    return stream && stream->Write(bytes) && stream->Close();
  }
  std::vector<std::wstring> Names() {
    std::vector<std::wstring> names;
    files_.List(Below(L"*"), [&](const FileEntry& entry) {
      names.push_back(entry.name);
      return true;
    });
    return names;
  }

 private:
  WindowsFiles files_;
  std::wstring path_;
};

}  // namespace tidewell
