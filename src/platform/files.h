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

// What became of a call, as far as the user can do something about it.
enum class FileStatus : std::uint8_t {
  kOk,
  kAbsent,   // there is no such file, folder or drive, nor can there be one of that name
  kRefused,  // by a write protection, or by the system: a folder is no file
  kFull,
  kInUse,  // another program holds the file, or the name is taken
  kOther,
};

// A stream, or why there is none.
template <typename Stream>
struct Opened {
  std::unique_ptr<Stream> stream;  // null unless the status is kOk
  FileStatus status = FileStatus::kOther;
};

class InputStream {
 public:
  virtual ~InputStream() = default;
  // Fills as much of `buffer` as there is; 0 at the end, nothing on an error.
  virtual std::optional<std::size_t> Read(std::span<std::byte> buffer) = 0;
};

class OutputStream {
 public:
  virtual ~OutputStream() = default;
  // False when not all of it could be written. Nothing is written any more then, and the close
  // tells why.
  virtual bool Write(std::span<const std::byte> bytes) = 0;
  // kOk when everything reached the disk. Destruction closes as well.
  virtual FileStatus Close() = 0;
};

struct FileEntry {
  std::wstring name;
  bool isFolder = false;
  std::uint64_t size = 0;  // bytes; of no meaning for a folder
};

class Files {
 public:
  virtual ~Files() = default;
  virtual Opened<InputStream> OpenForReading(const std::wstring& path) = 0;
  // Creates the file, or empties it when it exists.
  virtual Opened<OutputStream> OpenForWriting(const std::wstring& path) = 0;
  // Creates the file; kInUse when its name is taken.
  virtual Opened<OutputStream> CreateNew(const std::wstring& path) = 0;
  virtual FileStatus Remove(const std::wstring& path) = 0;
  // Puts `from` in the place of `to` in one step; on failure both are as they were. kRefused when
  // `to` cannot go, also when it is in use.
  virtual FileStatus Replace(const std::wstring& from, const std::wstring& to) = 0;
  // Gives `from` the name `to` in one step; on failure it keeps its own. kInUse when the name is
  // taken.
  virtual FileStatus Move(const std::wstring& from, const std::wstring& to) = 0;
  // kOk also when the folder is there already.
  virtual FileStatus MakeFolder(const std::wstring& path) = 0;
  virtual std::optional<FileEntry> Find(const std::wstring& path) = 0;
  // Offers every entry that fits a pattern ("\folder\*.dll") in the file system's own order,
  // "." and ".." left out, until `visit` returns false. False when the folder cannot be searched.
  virtual bool List(const std::wstring& pattern,
                    const std::function<bool(const FileEntry&)>& visit) = 0;
};

}  // namespace tidewell
