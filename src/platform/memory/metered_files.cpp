#include "platform/memory/metered_files.h"

#include <utility>

namespace tidewell {

class MeteredFiles::Reader final : public InputStream {
 public:
  Reader(std::unique_ptr<InputStream> inner, std::shared_ptr<CallMeter<FileCall>> meter)
      : inner_(std::move(inner)), meter_(std::move(meter)) {}

  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    if (meter_->Note(FileCall::kRead)) return std::nullopt;
    return inner_->Read(buffer);
  }

 private:
  std::unique_ptr<InputStream> inner_;
  std::shared_ptr<CallMeter<FileCall>> meter_;
};

class MeteredFiles::Writer final : public OutputStream {
 public:
  Writer(std::unique_ptr<OutputStream> inner, std::shared_ptr<CallMeter<FileCall>> meter)
      : inner_(std::move(inner)), meter_(std::move(meter)) {}

  bool Write(std::span<const std::byte> bytes) override {
    return !meter_->Note(FileCall::kWrite) && inner_->Write(bytes);
  }
  bool Close() override {
    const bool fails = meter_->Note(FileCall::kClose);
    return inner_->Close() && !fails;
  }

 private:
  std::unique_ptr<OutputStream> inner_;
  std::shared_ptr<CallMeter<FileCall>> meter_;
};

MeteredFiles::MeteredFiles(Files& inner)
    : inner_(inner), meter_(std::make_shared<CallMeter<FileCall>>()) {}

bool MeteredFiles::Logged(FileCall call, const std::wstring& path, bool succeeded) {
  meter_->Write(call, path, succeeded);
  return succeeded;
}

std::unique_ptr<InputStream> MeteredFiles::OpenForReading(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kOpenForReading);
  auto stream = fails ? nullptr : inner_.OpenForReading(path);
  if (!Logged(FileCall::kOpenForReading, path, stream != nullptr)) return nullptr;
  return std::make_unique<Reader>(std::move(stream), meter_);
}

std::unique_ptr<OutputStream> MeteredFiles::OpenForWriting(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kOpenForWriting);
  auto stream = fails ? nullptr : inner_.OpenForWriting(path);
  if (!Logged(FileCall::kOpenForWriting, path, stream != nullptr)) return nullptr;
  return std::make_unique<Writer>(std::move(stream), meter_);
}

std::unique_ptr<OutputStream> MeteredFiles::CreateNew(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kCreateNew);
  auto stream = fails ? nullptr : inner_.CreateNew(path);
  if (!Logged(FileCall::kCreateNew, path, stream != nullptr)) return nullptr;
  return std::make_unique<Writer>(std::move(stream), meter_);
}

bool MeteredFiles::Remove(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kRemove);
  return Logged(FileCall::kRemove, path, !fails && inner_.Remove(path));
}

bool MeteredFiles::Replace(const std::wstring& from, const std::wstring& to) {
  const bool fails = meter_->Note(FileCall::kReplace);
  return Logged(FileCall::kReplace, to, !fails && inner_.Replace(from, to));
}

bool MeteredFiles::Move(const std::wstring& from, const std::wstring& to) {
  const bool fails = meter_->Note(FileCall::kMove);
  return Logged(FileCall::kMove, to, !fails && inner_.Move(from, to));
}

bool MeteredFiles::MakeFolder(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kMakeFolder);
  return Logged(FileCall::kMakeFolder, path, !fails && inner_.MakeFolder(path));
}

std::optional<FileEntry> MeteredFiles::Find(const std::wstring& path) {
  const bool fails = meter_->Note(FileCall::kFind);
  auto entry = fails ? std::nullopt : inner_.Find(path);
  Logged(FileCall::kFind, path, entry.has_value());
  return entry;
}

bool MeteredFiles::List(const std::wstring& pattern,
                        const std::function<bool(const FileEntry&)>& visit) {
  const bool fails = meter_->Note(FileCall::kList);
  return Logged(FileCall::kList, pattern, !fails && inner_.List(pattern, visit));
}

}  // namespace tidewell
