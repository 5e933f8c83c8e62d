// Wraps any files: counts the calls, keeps a log of them and can make them fail (kOther).
#pragma once

#include <cstdint>
#include <memory>

#include "platform/files.h"
#include "platform/memory/call_recorder.h"

namespace tidewell {

enum class FileCall : std::uint8_t {
  kOpenForReading,
  kOpenForWriting,
  kCreateNew,
  kRemove,
  kReplace,
  kMove,
  kMakeFolder,
  kFind,
  kList,
  kRead,
  kWrite,
  kClose,  // of a writer; a close that is made to fail closes all the same
  kCount
};

// The log has every call with a path; a replacement or a move stands there with the path that it
// leads to.
class RecordedFiles final : public Files {
 public:
  explicit RecordedFiles(Files& inner);
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

  CallRecorder<FileCall>& Calls() { return *calls_; }
  int Count(FileCall call) const { return calls_->Count(call); }

 private:
  class Reader;
  class Writer;

  using WriterOpener = Opened<OutputStream> (Files::*)(const std::wstring& path);

  Opened<OutputStream> OpenWriter(FileCall call, WriterOpener open, const std::wstring& path);
  FileStatus Logged(FileCall call, const std::wstring& path, FileStatus status);

  Files& inner_;
  std::shared_ptr<CallRecorder<FileCall>> calls_;  // shared with the open streams
};

}  // namespace tidewell
