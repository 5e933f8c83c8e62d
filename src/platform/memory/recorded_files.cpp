#include "platform/memory/recorded_files.h"

#include <utility>

namespace tidewell {

class RecordedFiles::Reader final : public InputStream {
 public:
  Reader(std::unique_ptr<InputStream> inner, std::shared_ptr<CallRecorder<FileCall>> calls)
      : inner_(std::move(inner)), calls_(std::move(calls)) {}

  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    if (calls_->Note(FileCall::kRead)) return std::nullopt;
    return inner_->Read(buffer);
  }

 private:
  std::unique_ptr<InputStream> inner_;
  std::shared_ptr<CallRecorder<FileCall>> calls_;
};

class RecordedFiles::Writer final : public OutputStream {
 public:
  Writer(std::unique_ptr<OutputStream> inner, std::shared_ptr<CallRecorder<FileCall>> calls)
      : inner_(std::move(inner)), calls_(std::move(calls)) {}

  bool Write(std::span<const std::byte> bytes) override {
    hasFailed_ = calls_->Note(FileCall::kWrite) || hasFailed_;
    return !hasFailed_ && inner_->Write(bytes);
  }
  FileStatus Close() override {
    hasFailed_ = calls_->Note(FileCall::kClose) || hasFailed_;
    const FileStatus status = inner_->Close();
    return hasFailed_ ? FileStatus::kOther : status;
  }

 private:
  std::unique_ptr<OutputStream> inner_;
  std::shared_ptr<CallRecorder<FileCall>> calls_;
  bool hasFailed_ = false;
};

RecordedFiles::RecordedFiles(Files& inner)
    : inner_(inner), calls_(std::make_shared<CallRecorder<FileCall>>()) {}

FileStatus RecordedFiles::Logged(FileCall call, const std::wstring& path, FileStatus status) {
  calls_->Write(call, path, status == FileStatus::kOk);
  return status;
}

Opened<InputStream> RecordedFiles::OpenForReading(const std::wstring& path) {
  Opened<InputStream> file;
  if (!calls_->Note(FileCall::kOpenForReading)) file = inner_.OpenForReading(path);
  Logged(FileCall::kOpenForReading, path, file.status);
  if (file.stream) file.stream = std::make_unique<Reader>(std::move(file.stream), calls_);
  return file;
}

Opened<OutputStream> RecordedFiles::OpenForWriting(const std::wstring& path) {
  return OpenWriter(FileCall::kOpenForWriting, &Files::OpenForWriting, path);
}

Opened<OutputStream> RecordedFiles::CreateNew(const std::wstring& path) {
  return OpenWriter(FileCall::kCreateNew, &Files::CreateNew, path);
}

Opened<OutputStream> RecordedFiles::OpenWriter(FileCall call, WriterOpener open,
                                               const std::wstring& path) {
  Opened<OutputStream> file;
  if (!calls_->Note(call)) file = (inner_.*open)(path);
  Logged(call, path, file.status);
  if (file.stream) file.stream = std::make_unique<Writer>(std::move(file.stream), calls_);
  return file;
}

FileStatus RecordedFiles::Remove(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kRemove);
  return Logged(FileCall::kRemove, path, fails ? FileStatus::kOther : inner_.Remove(path));
}

FileStatus RecordedFiles::Replace(const std::wstring& from, const std::wstring& to) {
  const bool fails = calls_->Note(FileCall::kReplace);
  return Logged(FileCall::kReplace, to, fails ? FileStatus::kOther : inner_.Replace(from, to));
}

FileStatus RecordedFiles::Move(const std::wstring& from, const std::wstring& to) {
  const bool fails = calls_->Note(FileCall::kMove);
  return Logged(FileCall::kMove, to, fails ? FileStatus::kOther : inner_.Move(from, to));
}

FileStatus RecordedFiles::MakeFolder(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kMakeFolder);
  return Logged(FileCall::kMakeFolder, path, fails ? FileStatus::kOther : inner_.MakeFolder(path));
}

std::optional<FileEntry> RecordedFiles::Find(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kFind);
  auto entry = fails ? std::nullopt : inner_.Find(path);
  calls_->Write(FileCall::kFind, path, entry.has_value());
  return entry;
}

bool RecordedFiles::List(const std::wstring& pattern,
                         const std::function<bool(const FileEntry&)>& visit) {
  const bool isSearched = !calls_->Note(FileCall::kList) && inner_.List(pattern, visit);
  calls_->Write(FileCall::kList, pattern, isSearched);
  return isSearched;
}

}  // namespace tidewell
