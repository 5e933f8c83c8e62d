#include "platform/memory/memory_files.h"

#include <algorithm>
#include <utility>

#include "platform/name_pattern.h"
#include "platform/text.h"

namespace tidewell {

namespace {

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
  // Neither the name nor the contents of a file in use can be taken away.
  bool IsInUse() const { return isLocked || openStreams > 0; }
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
    if (!file_) return false;
    const std::size_t taken = disk_->Take(bytes.size());
    file_->bytes.insert(file_->bytes.end(), bytes.begin(),
                        bytes.begin() + static_cast<std::ptrdiff_t>(taken));
    isWhole_ = isWhole_ && taken == bytes.size();
    return taken == bytes.size();
  }

  bool Close() override { return Release() && isWhole_; }

 private:
  bool Release() {
    if (!file_) return false;
    --file_->openStreams;
    file_.reset();
    return true;
  }

  std::shared_ptr<Node> file_;
  std::shared_ptr<Disk> disk_;
  bool isWhole_ = true;
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

std::unique_ptr<InputStream> MemoryFiles::OpenForReading(const std::wstring& path) {
  const auto file = Walk(path);
  if (!file || file->isFolder || file->isLocked) return nullptr;
  return std::make_unique<Reader>(file);
}

std::unique_ptr<OutputStream> MemoryFiles::OpenForWriting(const std::wstring& path) {
  const auto folder = FolderOf(path);
  if (disk_->isWriteProtected || !folder || !IsFileName(LastName(path))) return nullptr;
  auto file = folder->Find(LastName(path));
  if (!file) file = folder->Add(LastName(path), false);
  if (file->isFolder || file->isLocked || file->isReadOnly) return nullptr;
  disk_->Return(file->bytes.size());
  file->bytes.clear();
  return std::make_unique<Writer>(file, disk_);
}

std::unique_ptr<OutputStream> MemoryFiles::CreateNew(const std::wstring& path) {
  return Walk(path) ? nullptr : OpenForWriting(path);
}

bool MemoryFiles::Remove(const std::wstring& path) {
  const auto file = Walk(path);
  if (disk_->isWriteProtected || !file || file->isFolder || file->isReadOnly || file->IsInUse())
    return false;
  disk_->Return(file->bytes.size());
  FolderOf(path)->Drop(file);
  return true;
}

bool MemoryFiles::Replace(const std::wstring& from, const std::wstring& to) {
  const auto file = Walk(from);
  const auto folder = FolderOf(to);
  if (disk_->isWriteProtected || !file || file->isFolder || file->IsInUse() || !folder ||
      !IsFileName(LastName(to))) {
    return false;
  }
  const auto old = folder->Find(LastName(to));
  if (old && old != file) {
    if (old->isFolder || old->isReadOnly || old->IsInUse()) return false;
    disk_->Return(old->bytes.size());
    folder->Drop(old);
  }
  FolderOf(from)->Drop(file);
  file->name = LastName(to);
  folder->entries.push_back(file);
  return true;
}

bool MemoryFiles::Move(const std::wstring& from, const std::wstring& to) {
  return !Walk(to) && Replace(from, to);
}

bool MemoryFiles::MakeFolder(const std::wstring& path) {
  const auto parent = FolderOf(path);
  if (!parent || !IsFileName(LastName(path))) return false;
  auto folder = parent->Find(LastName(path));
  if (!folder && disk_->isWriteProtected) return false;
  if (!folder) folder = parent->Add(LastName(path), true);
  return folder->isFolder;
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
  if (const auto file = OpenForWriting(path)) file->Write(bytes);
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
