// The system's files. A path without a drive is taken from the current drive's root.
#pragma once

#include "platform/files.h"

namespace tidewell {

class WindowsFiles final : public Files {
 public:
  // Shared with other readers and writers; not to be removed or replaced while it is open.
  std::unique_ptr<InputStream> OpenForReading(const std::wstring& path) override;
  std::unique_ptr<OutputStream> OpenForWriting(const std::wstring& path) override;
  std::unique_ptr<OutputStream> CreateNew(const std::wstring& path) override;
  bool Remove(const std::wstring& path) override;
  bool Replace(const std::wstring& from, const std::wstring& to) override;
  bool Move(const std::wstring& from, const std::wstring& to) override;
  bool MakeFolder(const std::wstring& path) override;
  std::optional<FileEntry> Find(const std::wstring& path) override;
  bool List(const std::wstring& pattern,
            const std::function<bool(const FileEntry&)>& visit) override;
};

}  // namespace tidewell
