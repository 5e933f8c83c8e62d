#include "platform/windows/windows_files.h"

#include <windows.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/name_pattern.h"

namespace tidewell {

namespace {

struct HandleCloser {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

struct SearchCloser {
  void operator()(HANDLE search) const { FindClose(search); }
};
using OwnedSearch = std::unique_ptr<void, SearchCloser>;

HANDLE NullIfInvalid(HANDLE handle) {
  return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

OwnedHandle OpenFile(const std::wstring& path, DWORD access, DWORD disposition) {
  return OwnedHandle(
      NullIfInvalid(CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                disposition, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

// One system call moves at most this much.
DWORD PieceOf(std::size_t size) {
  return static_cast<DWORD>(std::min<std::size_t>(size, 1u << 30));
}

class FileReader final : public InputStream {
 public:
  explicit FileReader(OwnedHandle file) : file_(std::move(file)) {}

  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    DWORD count = 0;
    if (!ReadFile(file_.get(), buffer.data(), PieceOf(buffer.size()), &count, nullptr)) {
      return std::nullopt;
    }
    return count;
  }

 private:
  OwnedHandle file_;
};

class FileWriter final : public OutputStream {
 public:
  explicit FileWriter(OwnedHandle file) : file_(std::move(file)) {}

  bool Write(std::span<const std::byte> bytes) override {
    while (file_ && !bytes.empty()) {
      DWORD count = 0;
      if (!WriteFile(file_.get(), bytes.data(), PieceOf(bytes.size()), &count, nullptr) ||
          count == 0) {
        isWhole_ = false;
        return false;
      }
      bytes = bytes.subspan(count);
    }
    return file_ != nullptr;
  }

  bool Close() override {
    const bool isOnDisk = file_ && FlushFileBuffers(file_.get()) && isWhole_;
    file_.reset();
    return isOnDisk;
  }

 private:
  OwnedHandle file_;
  bool isWhole_ = true;
};

FileEntry EntryOf(const WIN32_FIND_DATAW& found) {
  return {found.cFileName, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
          std::uint64_t{found.nFileSizeHigh} << 32 | found.nFileSizeLow};
}

bool IsDots(const wchar_t* name) {
  return std::wstring_view(name) == L"." || std::wstring_view(name) == L"..";
}

}  // namespace

std::unique_ptr<InputStream> WindowsFiles::OpenForReading(const std::wstring& path) {
  OwnedHandle file = OpenFile(path, GENERIC_READ, OPEN_EXISTING);
  return file ? std::make_unique<FileReader>(std::move(file)) : nullptr;
}

std::unique_ptr<OutputStream> WindowsFiles::OpenForWriting(const std::wstring& path) {
  OwnedHandle file = OpenFile(path, GENERIC_WRITE, CREATE_ALWAYS);
  return file ? std::make_unique<FileWriter>(std::move(file)) : nullptr;
}

std::unique_ptr<OutputStream> WindowsFiles::CreateNew(const std::wstring& path) {
  OwnedHandle file = OpenFile(path, GENERIC_WRITE, CREATE_NEW);
  return file ? std::make_unique<FileWriter>(std::move(file)) : nullptr;
}

bool WindowsFiles::Remove(const std::wstring& path) {
  return DeleteFileW(path.c_str()) != FALSE;
}

bool WindowsFiles::Replace(const std::wstring& from, const std::wstring& to) {
  return MoveFileExW(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool WindowsFiles::Move(const std::wstring& from, const std::wstring& to) {
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool WindowsFiles::MakeFolder(const std::wstring& path) {
  if (CreateDirectoryW(path.c_str(), nullptr)) return true;
  if (GetLastError() != ERROR_ALREADY_EXISTS) return false;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::optional<FileEntry> WindowsFiles::Find(const std::wstring& path) {
  if (path.find_first_of(L"*?") != std::wstring::npos) return std::nullopt;
  WIN32_FIND_DATAW found;
  const OwnedSearch search(NullIfInvalid(FindFirstFileW(path.c_str(), &found)));
  if (!search) return std::nullopt;
  return EntryOf(found);
}

bool WindowsFiles::List(const std::wstring& pattern,
                        const std::function<bool(const FileEntry&)>& visit) {
  WIN32_FIND_DATAW found;
  const OwnedSearch search(NullIfInvalid(FindFirstFileW(pattern.c_str(), &found)));
  if (!search) {
    // A device says the one, a desktop the other, when the folder is there and nothing fits.
    const DWORD error = GetLastError();
    return error == ERROR_NO_MORE_FILES || error == ERROR_FILE_NOT_FOUND;
  }
  const std::wstring_view names = std::wstring_view(pattern).substr(pattern.rfind(L'\\') + 1);
  do {
    // The system also offers what fits by its short second name: "x.scm_old" for "*.scm".
    if (IsDots(found.cFileName) || !FitsPattern(found.cFileName, names)) continue;
    if (!visit(EntryOf(found))) return true;
  } while (FindNextFileW(search.get(), &found));
  return GetLastError() == ERROR_NO_MORE_FILES;
}

}  // namespace tidewell
