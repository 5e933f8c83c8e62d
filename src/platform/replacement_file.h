// A file that is written beside its place and put there only when it is complete, so that a full
// disk or a lost battery leaves the old one or the new one, whole.
#pragma once

#include <memory>
#include <string>

#include "platform/files.h"

namespace tidewell {

class ReplacementFile {
 public:
  ReplacementFile(Files& files, std::wstring path);
  // Without a commit nothing stays behind.
  ~ReplacementFile();
  ReplacementFile(const ReplacementFile&) = delete;
  ReplacementFile& operator=(const ReplacementFile&) = delete;

  // Null when the file cannot be created.
  OutputStream* Stream() { return stream_.get(); }
  // False when the file did not reach its place; what was there is as it was.
  bool Commit();

 private:
  Files& files_;
  std::wstring path_;
  std::wstring beside_;
  std::unique_ptr<OutputStream> stream_;
};

}  // namespace tidewell
