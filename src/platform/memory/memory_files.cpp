#include "platform/memory/memory_files.h"

#include <algorithm>
#include <utility>

#include "platform/name_pattern.h"
#include "platform/text.h"

namespace tidewell {

namespace {

using enum FileStatus;

constexpr std::size_t kLongestName = 255;

std::wstring_view LastName(std::wstring_view path) {
  return path.substr(path.rfind(L'\\') + 1);
}

bool IsFileName(std::wstring_view name) {
  return !name.empty() && name.size() <= kLongestName &&
         name.find_first_of(L"\\/:*?\"<>|") == std::wstring_view::npos &&
         std::none_of(name.begin(), name.end(), [](wchar_t unit) { return unit < L' '; });
}

}  // namespace

struct MemoryFiles::Disk {
  std::optional<std::size_t> freeBytes;
  bool isWriteProtected = false;

  std::size_t Take(std::size_t bytes) {
    const std::size_t taken = std::min(bytes, freeBytes.value_or(bytes));
    if (freeBytes) *freeBytes -= taken;
    return taken;
  }
  void Return(std::size_t bytes) {
    if (freeBytes) *freeBytes += bytes;
  }
};

struct MemoryFiles::Node {
  std::wstring name;
  bool isFolder = false;
  bool isLocked = false;
  bool isReadOnly = false;
  int openStreams = 0;
  std::vector<std::byte> bytes;
  std::vector<std::shared_ptr<Node>> entries;

  std::shared_ptr<Node> Find(std::wstring_view entryName) const {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
      return EqualIgnoringCase(entry->name, entryName);
    });
    return found == entries.end() ? nullptr : *found;
  }
  std::shared_ptr<Node> Add(std::wstring_view entryName, bool asFolder) {
    auto entry = std::make_shared<Node>();
    entry->name = entryName;
    entry->isFolder = asFolder;
    return entries.emplace_back(std::move(entry));
  }
  void Drop(const std::shared_ptr<Node>& entry) { std::erase(entries, entry); }
  FileStatus OpenStatus() const {
    if (isFolder) return kRefused;
    return isLocked ? kInUse : kOk;
  }
  // Neither the name nor the contents of a file in use can be taken away.
  FileStatus MoveStatus() const {
    const FileStatus status = OpenStatus();
    return status == kOk && openStreams > 0 ? kInUse : status;
  }
  FileStatus RemoveStatus() const { return isReadOnly ? kRefused : MoveStatus(); }
};

class MemoryFiles::Reader final : public InputStream {
 public:
  explicit Reader(std::shared_ptr<Node> file) : file_(std::move(file)) { ++file_->openStreams; }
  ~Reader() override { --file_->openStreams; }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    const std::size_t start = std::min(at_, file_->bytes.size());
    const std::size_t count = std::min(buffer.size(), file_->bytes.size() - start);
    std::copy_n(file_->bytes.begin() + static_cast<std::ptrdiff_t>(start), count, buffer.begin());
    at_ = start + count;
    return count;
  }

 private:
  std::shared_ptr<Node> file_;
  std::size_t at_ = 0;
};

class MemoryFiles::Writer final : public OutputStream {
 public:
  Writer(std::shared_ptr<Node> file, std::shared_ptr<Disk> disk)
      : file_(std::move(file)), disk_(std::move(disk)) {
    ++file_->openStreams;
  }
  ~Writer() override { Release(); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  bool Write(std::span<const std::byte> bytes) override {
    if (status_ != kOk) return false;
    const std::size_t taken = disk_->Take(bytes.size());
    file_->bytes.insert(file_->bytes.end(), bytes.begin(),
                        bytes.begin() + static_cast<std::ptrdiff_t>(taken));
    if (taken != bytes.size()) status_ = kFull;
    return status_ == kOk;
  }

  FileStatus Close() override {
    Release();
    return std::exchange(status_, kOther);
  }

 private:
  void Release() {
    if (file_) --file_->openStreams;
    file_.reset();
  }

  std::shared_ptr<Node> file_;
  std::shared_ptr<Disk> disk_;
  FileStatus status_ = kOk;
};

MemoryFiles::MemoryFiles() : root_(std::make_shared<Node>()), disk_(std::make_shared<Disk>()) {
  root_->isFolder = true;
}

MemoryFiles::~MemoryFiles() = default;

std::shared_ptr<MemoryFiles::Node> MemoryFiles::Walk(std::wstring_view path) const {
  if (!path.starts_with(L'\\')) return nullptr;
  std::shared_ptr<Node> node = root_;
  while (node && path.size() > 1) {
    path.remove_prefix(1);
    const std::size_t end = std::min(path.find(L'\\'), path.size());
    node = node->Find(path.substr(0, end));
    path.remove_prefix(end);
  }
  return node;
}

std::shared_ptr<MemoryFiles::Node> MemoryFiles::FolderOf(std::wstring_view path) const {
  const std::size_t split = path.rfind(L'\\');
  if (split == std::wstring_view::npos) return nullptr;
  const auto folder = split == 0 ? root_ : Walk(path.substr(0, split));
  return folder && folder->isFolder ? folder : nullptr;
}

Opened<InputStream> MemoryFiles::OpenForReading(const std::wstring& path) {
  const auto file = Walk(path);
  const FileStatus status = file ? file->OpenStatus() : kAbsent;
  if (status != kOk) return {nullptr, status};
  return {std::make_unique<Reader>(file), kOk};
}

Opened<OutputStream> MemoryFiles::OpenForWriting(const std::wstring& path) {
  const auto folder = FolderOf(path);
  if (!folder || !IsFileName(LastName(path))) return {nullptr, kAbsent};
  if (disk_->isWriteProtected) return {nullptr, kRefused};
  auto file = folder->Find(LastName(path));
  if (!file) file = folder->Add(LastName(path), false);
  const FileStatus status = file->isReadOnly ? kRefused : file->OpenStatus();
  if (status != kOk) return {nullptr, status};
  disk_->Return(file->bytes.size());
  file->bytes.clear();
  return {std::make_unique<Writer>(file, disk_), kOk};
}

Opened<OutputStream> MemoryFiles::CreateNew(const std::wstring& path) {
  if (Walk(path)) return {nullptr, kInUse};
  return OpenForWriting(path);
}

FileStatus MemoryFiles::Remove(const std::wstring& path) {
  const auto file = Walk(path);
  if (!file) return kAbsent;
  const FileStatus status = disk_->isWriteProtected ? kRefused : file->RemoveStatus();
  if (status != kOk) return status;
  disk_->Return(file->bytes.size());
  FolderOf(path)->Drop(file);
  return kOk;
}

FileStatus MemoryFiles::Replace(const std::wstring& from, const std::wstring& to) {
  const auto file = Walk(from);
  const auto folder = FolderOf(to);
  if (!file || !folder || !IsFileName(LastName(to))) return kAbsent;
  if (disk_->isWriteProtected) return kRefused;
  if (const FileStatus status = file->MoveStatus(); status != kOk) return status;
  const auto old = folder->Find(LastName(to));
  if (old && old != file && Remove(to) != kOk) return kRefused;
  FolderOf(from)->Drop(file);
  file->name = LastName(to);
  folder->entries.push_back(file);
  return kOk;
}

FileStatus MemoryFiles::Move(const std::wstring& from, const std::wstring& to) {
  return Walk(from) && Walk(to) ? kInUse : Replace(from, to);
}

FileStatus MemoryFiles::MakeFolder(const std::wstring& path) {
  const auto parent = FolderOf(path);
  if (!parent || !IsFileName(LastName(path))) return kAbsent;
  auto folder = parent->Find(LastName(path));
  if (!folder && disk_->isWriteProtected) return kRefused;
  if (!folder) folder = parent->Add(LastName(path), true);
  return folder->isFolder ? kOk : kInUse;
}

std::optional<FileEntry> MemoryFiles::Find(const std::wstring& path) {
  const auto node = Walk(path);
  if (!node || node == root_ || path.ends_with(L'\\')) return std::nullopt;
  return FileEntry{node->name, node->isFolder, node->bytes.size()};
}

bool MemoryFiles::List(const std::wstring& pattern,
                       const std::function<bool(const FileEntry&)>& visit) {
  const auto folder = FolderOf(pattern);
  if (!folder) return false;
  const auto entries = folder->entries;  // a visitor may remove what it is shown
  for (const auto& entry : entries) {
    if (!FitsPattern(entry->name, LastName(pattern))) continue;
    if (!visit({entry->name, entry->isFolder, entry->bytes.size()})) break;
  }
  return true;
}

void MemoryFiles::Put(const std::wstring& path, std::span<const std::byte> bytes) {
  for (std::size_t end = path.find(L'\\', 1); end != std::wstring::npos;
       end = path.find(L'\\', end + 1)) {
    MakeFolder(path.substr(0, end));
  }
  if (const auto file = OpenForWriting(path).stream) file->Write(bytes);
}

void MemoryFiles::Put(const std::wstring& path, std::string_view bytes) {
  Put(path, std::as_bytes(std::span(bytes)));
}

std::optional<std::vector<std::byte>> MemoryFiles::Contents(const std::wstring& path) const {
  const auto file = Walk(path);
  if (!file || file->isFolder) return std::nullopt;
  return file->bytes;
}

void MemoryFiles::SetLocked(const std::wstring& path, bool isLocked) {
  if (const auto file = Walk(path)) file->isLocked = isLocked;
}

void MemoryFiles::SetReadOnly(const std::wstring& path, bool isReadOnly) {
  if (const auto file = Walk(path)) file->isReadOnly = isReadOnly;
}

void MemoryFiles::SetWriteProtected(bool isWriteProtected) {
  disk_->isWriteProtected = isWriteProtected;
}

void MemoryFiles::SetFreeBytes(std::optional<std::size_t> bytes) {
  disk_->freeBytes = bytes;
}

}  // namespace tidewell
