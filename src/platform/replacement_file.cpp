#include "platform/replacement_file.h"

#include <utility>

namespace tidewell {

ReplacementFile::ReplacementFile(Files& files, std::wstring path)
    : files_(files),
      path_(std::move(path)),
      beside_(path_ + L".new"),
      stream_(files.OpenForWriting(beside_)) {}

ReplacementFile::~ReplacementFile() {
  if (!stream_) return;
  stream_.reset();
  files_.Remove(beside_);
}

bool ReplacementFile::Commit() {
  if (!stream_ || !stream_->Close()) return false;
  if (!files_.Replace(beside_, path_)) return false;
  stream_.reset();
  return true;
}

}  // namespace tidewell
