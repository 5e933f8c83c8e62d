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
    return !calls_->Note(FileCall::kWrite) && inner_->Write(bytes);
  }
  bool Close() override {
    const bool fails = calls_->Note(FileCall::kClose);
    return inner_->Close() && !fails;
  }

 private:
  std::unique_ptr<OutputStream> inner_;
  std::shared_ptr<CallRecorder<FileCall>> calls_;
};

RecordedFiles::RecordedFiles(Files& inner)
    : inner_(inner), calls_(std::make_shared<CallRecorder<FileCall>>()) {}

bool RecordedFiles::Logged(FileCall call, const std::wstring& path, bool succeeded) {
  calls_->Write(call, path, succeeded);
  return succeeded;
}

std::unique_ptr<InputStream> RecordedFiles::OpenForReading(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kOpenForReading);
  auto stream = fails ? nullptr : inner_.OpenForReading(path);
  if (!Logged(FileCall::kOpenForReading, path, stream != nullptr)) return nullptr;
  return std::make_unique<Reader>(std::move(stream), calls_);
}

std::unique_ptr<OutputStream> RecordedFiles::OpenForWriting(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kOpenForWriting);
  auto stream = fails ? nullptr : inner_.OpenForWriting(path);
  if (!Logged(FileCall::kOpenForWriting, path, stream != nullptr)) return nullptr;
  return std::make_unique<Writer>(std::move(stream), calls_);
}

std::unique_ptr<OutputStream> RecordedFiles::CreateNew(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kCreateNew);
  auto stream = fails ? nullptr : inner_.CreateNew(path);
  if (!Logged(FileCall::kCreateNew, path, stream != nullptr)) return nullptr;
  return std::make_unique<Writer>(std::move(stream), calls_);
}

bool RecordedFiles::Remove(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kRemove);
  return Logged(FileCall::kRemove, path, !fails && inner_.Remove(path));
}

bool RecordedFiles::Replace(const std::wstring& from, const std::wstring& to) {
  const bool fails = calls_->Note(FileCall::kReplace);
  return Logged(FileCall::kReplace, to, !fails && inner_.Replace(from, to));
}

bool RecordedFiles::Move(const std::wstring& from, const std::wstring& to) {
  const bool fails = calls_->Note(FileCall::kMove);
  return Logged(FileCall::kMove, to, !fails && inner_.Move(from, to));
}

bool RecordedFiles::MakeFolder(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kMakeFolder);
  return Logged(FileCall::kMakeFolder, path, !fails && inner_.MakeFolder(path));
}

std::optional<FileEntry> RecordedFiles::Find(const std::wstring& path) {
  const bool fails = calls_->Note(FileCall::kFind);
  auto entry = fails ? std::nullopt : inner_.Find(path);
  Logged(FileCall::kFind, path, entry.has_value());
  return entry;
}

bool RecordedFiles::List(const std::wstring& pattern,
                         const std::function<bool(const FileEntry&)>& visit) {
  const bool fails = calls_->Note(FileCall::kList);
  return Logged(FileCall::kList, pattern, !fails && inner_.List(pattern, visit));
}

}  // namespace tidewell
