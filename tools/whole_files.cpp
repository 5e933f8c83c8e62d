#include "tools/whole_files.h"

#include <cstdio>
#include <filesystem>
#include <memory>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace tidewell {

namespace {

namespace fs = std::filesystem;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

fs::path PathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

File OpenFile(const fs::path& path, bool forWriting) {
#ifdef _WIN32
  return File(_wfopen(path.c_str(), forWriting ? L"wbx" : L"rb"));
#else
  return File(std::fopen(path.c_str(), forWriting ? "wbx" : "rb"));
#endif
}

constexpr int kMostLinks = 40;

// Not only into the system's memory.
bool Flush(std::FILE* file) {
#ifdef _WIN32
  return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
#else
  return std::fflush(file) == 0 && fsync(fileno(file)) == 0;
#endif
}

// A name beside the path that is free.
fs::path NameBeside(const fs::path& path) {
  std::error_code error;
  fs::path beside = path;
  beside += ".new";
  for (int i = 2; fs::exists(beside, error); ++i) {
    beside = path;
    beside += ".new" + std::to_string(i);
  }
  return beside;
}

bool WriteNew(const fs::path& path, std::span<const std::byte> bytes) {
  const File file = OpenFile(path, true);
  return file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
         Flush(file.get());
}

}  // namespace

std::optional<std::vector<std::byte>> ReadFile(const std::string& path) {
  const fs::path place = PathOf(path);
  std::error_code error;
  const File file = OpenFile(place, false);
  if (!file || fs::is_directory(place, error)) return std::nullopt;
  // What is no plain file does not tell its size.
  const auto size = fs::file_size(place, error);
  std::vector<std::byte> bytes(error ? 0 : static_cast<std::size_t>(size));
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) bytes.resize(used + 64 * 1024);
    const std::size_t count = std::fread(bytes.data() + used, 1, bytes.size() - used, file.get());
    used += count;
    if (count == 0) break;
  }
  if (std::ferror(file.get()) != 0) return std::nullopt;
  bytes.resize(used);
  return bytes;
}

std::string WhyNotRead(const std::string& path) {
  std::error_code error;
  const fs::path place = PathOf(path);
  if (fs::is_directory(place, error)) return "is a folder: name a file in it.";
  if (!fs::exists(place, error)) return "is not there: check its name and its folder.";
  return "cannot be read: check that it is not protected.";
}

bool WriteFile(const std::string& path, std::span<const std::byte> bytes) {
  std::error_code error;
  fs::path place = PathOf(path);
  for (int link = 0; link < kMostLinks && fs::is_symlink(place, error); ++link) {
    place = place.parent_path() / fs::read_symlink(place, error);
  }
  const fs::file_status old = fs::symlink_status(place, error);
  // What is no plain file, or is protected, is no place for one.
  const bool isProtected = (old.permissions() & fs::perms::owner_write) == fs::perms::none;
  if (fs::exists(old) && (!fs::is_regular_file(old) || isProtected)) return false;
  error.clear();
  const fs::path beside = NameBeside(place);
  bool isDone = WriteNew(beside, bytes);
  if (isDone && fs::exists(old)) fs::permissions(beside, old.permissions(), error);
  if (isDone) fs::rename(beside, place, error);
  isDone = isDone && !error;
  if (!isDone) fs::remove(beside, error);
  return isDone;
}

bool IsSameFile(const std::string& left, const std::string& right) {
  std::error_code error;
  return fs::equivalent(PathOf(left), PathOf(right), error);
}

}  // namespace tidewell
