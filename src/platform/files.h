// The door to the file system. Paths are absolute device paths ("\My Documents\a.twsb").
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tidewell {

class InputStream {
 public:
  virtual ~InputStream() = default;
  // Fills as much of `buffer` as there is; 0 at the end, nothing on an error.
  virtual std::optional<std::size_t> Read(std::span<std::byte> buffer) = 0;
};

class OutputStream {
 public:
  virtual ~OutputStream() = default;
  // False when not all of it could be written (a full disk).
  virtual bool Write(std::span<const std::byte> bytes) = 0;
  // Closes and tells whether everything reached the disk. Destruction closes as well.
  virtual bool Close() = 0;
};

struct FileEntry {
  std::wstring name;
  bool isFolder = false;
  std::uint64_t size = 0;  // bytes; of no meaning for a folder
};

class Files {
 public:
  virtual ~Files() = default;
  // Null when the file is absent, locked or a folder.
  virtual std::unique_ptr<InputStream> OpenForReading(const std::wstring& path) = 0;
  // Creates the file, or empties it when it exists. Null when that is refused.
  virtual std::unique_ptr<OutputStream> OpenForWriting(const std::wstring& path) = 0;
  // Creates the file. Null also when its name is taken.
  virtual std::unique_ptr<OutputStream> CreateNew(const std::wstring& path) = 0;
  virtual bool Remove(const std::wstring& path) = 0;
  // Puts `from` in the place of `to` in one step; on failure both are as they were.
  virtual bool Replace(const std::wstring& from, const std::wstring& to) = 0;
  // Gives `from` the name `to` in one step; on failure, also when that name is taken, it keeps its
  // own.
  virtual bool Move(const std::wstring& from, const std::wstring& to) = 0;
  // True also when the folder is there already.
  virtual bool MakeFolder(const std::wstring& path) = 0;
  virtual std::optional<FileEntry> Find(const std::wstring& path) = 0;
  // Offers every entry that fits a pattern ("\folder\*.dll") in the file system's own order,
  // "." and ".." left out, until `visit` returns false. False when the folder cannot be searched.
  virtual bool List(const std::wstring& pattern,
                    const std::function<bool(const FileEntry&)>& visit) = 0;
};

}  // namespace tidewell
