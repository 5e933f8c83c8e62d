// A file that is written beside its place and put there only when it is complete, so that a full
// disk or a lost battery leaves the old one or the new one, whole.
#pragma once

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

  // Null when the file cannot be created; the commit tells why.
  OutputStream* Stream() { return file_.stream.get(); }
  // Else why the file was not created, not written whole or not put in its place; what was there is
  // as it was.
  FileStatus Commit();
  // The same for a place that is free; one that is taken is left alone.
  FileStatus CommitAsNew();

 private:
  using PutInPlace = FileStatus (Files::*)(const std::wstring& from, const std::wstring& to);

  void CreateBeside();
  FileStatus CommitBy(PutInPlace putInPlace);

  Files& files_;
  std::wstring path_;
  std::wstring beside_;
  Opened<OutputStream> file_;
};

}  // namespace tidewell
