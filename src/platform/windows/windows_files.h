// The system's files. A path without a drive is taken from the current drive's root.
#pragma once

#include "platform/files.h"

namespace tidewell {

class WindowsFiles final : public Files {
 public:
  // Shared with other readers and writers; not to be removed or replaced while it is open.
  Opened<InputStream> OpenForReading(const std::wstring& path) override;
  Opened<OutputStream> OpenForWriting(const std::wstring& path) override;
  Opened<OutputStream> CreateNew(const std::wstring& path) override;
  FileStatus Remove(const std::wstring& path) override;
  FileStatus Replace(const std::wstring& from, const std::wstring& to) override;
  FileStatus Move(const std::wstring& from, const std::wstring& to) override;
  FileStatus MakeFolder(const std::wstring& path) override;
  std::optional<FileEntry> Find(const std::wstring& path) override;
  bool List(const std::wstring& pattern,
            const std::function<bool(const FileEntry&)>& visit) override;
};

}  // namespace tidewell
