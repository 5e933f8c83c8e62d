// A file that is written beside its place and put there only when it is complete, so that a full
// disk or a lost battery leaves the old one or the new one, whole.
#pragma once

#include <memory>
#include <string>

#include "platform/files.h"

namespace tidewell {

// The folder of a path with its final backslash, empty for a bare name.
std::wstring FolderOf(const std::wstring& path);

class ReplacementFile {
 public:
  // Writes to a file of our own in the same folder, under a name that is free; what an end without
  // warning left there under such a name goes.
  ReplacementFile(Files& files, std::wstring path);
  // Without a commit nothing stays behind.
  ~ReplacementFile();
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  // Null when the file cannot be created.
  OutputStream* Stream() { return stream_.get(); }
  // False when the file did not reach its place; what was there is as it was.
  bool Commit();
  // The same for a place that is free; one that is taken is left alone.
  bool CommitAsNew();

 private:
  using PutInPlace = bool (Files::*)(const std::wstring& from, const std::wstring& to);

  void CreateBeside();
  bool CommitBy(PutInPlace putInPlace);

  Files& files_;
  std::wstring path_;
  std::wstring beside_;
  std::unique_ptr<OutputStream> stream_;
};

}  // namespace tidewell
