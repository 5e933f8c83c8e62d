// A file system in memory: paths without regard to letter case, folders, sharing as on the device,
// and a disk that can be made full.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/files.h"

namespace tidewell {

class MemoryFiles final : public Files {
 public:
  MemoryFiles();
  ~MemoryFiles() override;

  Opened<InputStream> OpenForReading(const std::wstring& path) override;
  Opened<OutputStream> OpenForWriting(const std::wstring& path) override;
  Opened<OutputStream> CreateNew(const std::wstring& path) override;
  FileStatus Remove(const std::wstring& path) override;
  FileStatus Replace(const std::wstring& from, const std::wstring& to) override;
  FileStatus Move(const std::wstring& from, const std::wstring& to) override;
  FileStatus MakeFolder(const std::wstring& path) override;
  std::optional<FileEntry> Find(const std::wstring& path) override;
  // In the order in which the entries were made.
  bool List(const std::wstring& pattern,
            const std::function<bool(const FileEntry&)>& visit) override;

  // What a test arranges. Put makes the folders on the way as well; a path that ends in a
  // backslash is a folder.
  void Put(const std::wstring& path, std::span<const std::byte> bytes = {});
  void Put(const std::wstring& path, std::string_view bytes);
  // The whole file; nothing when it is absent.
  std::optional<std::vector<std::byte>> Contents(const std::wstring& path) const;
  // As another program's exclusive handle, and as the read-only attribute.
  void SetLocked(const std::wstring& path, bool isLocked);
  void SetReadOnly(const std::wstring& path, bool isReadOnly);
  // The disk takes this many more bytes, counted from now; without a figure it is endless.
  void SetFreeBytes(std::optional<std::size_t> bytes);
  // As a card whose lock is on: nothing is created, changed or removed.
  void SetWriteProtected(bool isWriteProtected);

 private:
  struct Node;
  struct Disk;
  class Reader;
  class Writer;

  std::shared_ptr<Node> Walk(std::wstring_view path) const;
  std::shared_ptr<Node> FolderOf(std::wstring_view path) const;

  std::shared_ptr<Node> root_;
  std::shared_ptr<Disk> disk_;
};

}  // namespace tidewell
