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

// Of the call that has just failed.
FileStatus LastStatus() {
  using enum FileStatus;
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_DIRECTORY:
      return kAbsent;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return kRefused;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return kFull;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return kInUse;
    default:
      return kOther;
  }
}

FileStatus StatusOf(BOOL hasSucceeded) {
  return hasSucceeded ? FileStatus::kOk : LastStatus();
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
    while (status_ == FileStatus::kOk && !bytes.empty()) {
      DWORD count = 0;
      status_ =
          StatusOf(WriteFile(file_.get(), bytes.data(), PieceOf(bytes.size()), &count, nullptr));
      if (status_ == FileStatus::kOk && count == 0) status_ = FileStatus::kFull;
      bytes = bytes.subspan(count);
    }
    return status_ == FileStatus::kOk;
  }

  FileStatus Close() override {
    if (status_ == FileStatus::kOk) status_ = StatusOf(FlushFileBuffers(file_.get()));
    file_.reset();
    return std::exchange(status_, FileStatus::kOther);  // so nothing is written to it any more
  }

 private:
  OwnedHandle file_;
  FileStatus status_ = FileStatus::kOk;  // of the first write that failed
};

// As `Stream` the door knows it, `File` is what it is.
template <typename Stream, typename File>
Opened<Stream> Open(const std::wstring& path, DWORD access, DWORD disposition) {
  OwnedHandle file(
      NullIfInvalid(CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                disposition, FILE_ATTRIBUTE_NORMAL, nullptr)));
  if (!file) return {nullptr, LastStatus()};
  return {std::make_unique<File>(std::move(file)), FileStatus::kOk};
}

Opened<OutputStream> OpenWriter(const std::wstring& path, DWORD disposition) {
  return Open<OutputStream, FileWriter>(path, GENERIC_WRITE, disposition);
}

FileEntry EntryOf(const WIN32_FIND_DATAW& found) {
  return {found.cFileName, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
          std::uint64_t{found.nFileSizeHigh} << 32 | found.nFileSizeLow};
}

bool IsDots(const wchar_t* name) {
  return std::wstring_view(name) == L"." || std::wstring_view(name) == L"..";
}

}  // namespace

Opened<InputStream> WindowsFiles::OpenForReading(const std::wstring& path) {
  return Open<InputStream, FileReader>(path, GENERIC_READ, OPEN_EXISTING);
}

Opened<OutputStream> WindowsFiles::OpenForWriting(const std::wstring& path) {
  return OpenWriter(path, CREATE_ALWAYS);
}

Opened<OutputStream> WindowsFiles::CreateNew(const std::wstring& path) {
  return OpenWriter(path, CREATE_NEW);
}

FileStatus WindowsFiles::Remove(const std::wstring& path) {
  return StatusOf(DeleteFileW(path.c_str()));
}

FileStatus WindowsFiles::Replace(const std::wstring& from, const std::wstring& to) {
  return StatusOf(
      MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

FileStatus WindowsFiles::Move(const std::wstring& from, const std::wstring& to) {
  return StatusOf(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
}

FileStatus WindowsFiles::MakeFolder(const std::wstring& path) {
  const FileStatus status = StatusOf(CreateDirectoryW(path.c_str(), nullptr));
  if (status != FileStatus::kInUse) return status;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool isFolder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isFolder ? FileStatus::kOk : status;
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
