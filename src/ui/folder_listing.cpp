#include "ui/folder_listing.h"

#include <algorithm>
#include <optional>

namespace tidewell {

namespace {

constexpr wchar_t kRoot[] = L"\\";

void SortFoldersFirst(std::vector<ListedEntry>& entries, Locale& locale) {
  std::stable_sort(entries.begin(), entries.end(),
                   [&](const ListedEntry& left, const ListedEntry& right) {
                     if (left.IsFolder() != right.IsFolder()) return left.IsFolder();
                     return locale.CompareIgnoringCase(left.name, right.name) < 0;
                   });
}

// A search would take a wildcard for any name.
std::optional<FileEntry> FindExactly(Files& files, const std::wstring& path) {
  if (path.find_first_of(L"*?") != std::wstring::npos) return std::nullopt;
  return files.Find(path);
}

}  // namespace

FolderListing ListFolder(Files& files, Locale& locale, const std::wstring& pattern,
                         const std::function<bool(const FileEntry&)>& accepts) {
  FolderListing listing;
  std::uint32_t index = 0;
  listing.isReadable = files.List(pattern, [&](const FileEntry& entry) {
    if (accepts(entry)) {
      listing.entries.push_back(
          {entry.name, (index++ & 0xFFFF) | (entry.isFolder ? kFolderTag : 0)});
    }
    return true;
  });
  SortFoldersFirst(listing.entries, locale);
  return listing;
}

bool HasParent(std::wstring_view folder) {
  return folder.starts_with(L'\\') && folder != kRoot;
}

std::wstring ParentFolder(std::wstring_view path) {
  const std::size_t split = path.rfind(L'\\');
  if (split == std::wstring_view::npos || split == 0) return kRoot;
  return std::wstring(path.substr(0, split));
}

std::wstring_view NameInPath(std::wstring_view path) {
  return path.substr(path.rfind(L'\\') + 1);
}

bool FolderExists(Files& files, const std::wstring& path) {
  if (path == kRoot) return true;
  const auto entry = FindExactly(files, path);
  return entry && entry->isFolder;
}

bool FileExists(Files& files, const std::wstring& path) {
  const auto entry = FindExactly(files, path);
  return entry && !entry->isFolder;
}

std::wstring NearestFolder(Files& files, std::wstring_view wanted) {
  if (!wanted.starts_with(L'\\')) return kRoot;
  while (wanted.size() > 1 && wanted.ends_with(L'\\')) wanted.remove_suffix(1);
  std::wstring folder(wanted);
  while (!FolderExists(files, folder)) folder = ParentFolder(folder);
  return folder;
}

std::wstring ShortenPath(const std::wstring& path,
                         const std::function<bool(const std::wstring&)>& fits) {
  static constexpr wchar_t kLeftOut[] = L"...";
  if (fits(path)) return path;
  std::wstring shown = path;
  for (std::size_t from = path.find(L'\\', 1); from != std::wstring::npos;
       from = path.find(L'\\', from + 1)) {
    shown = kLeftOut + path.substr(from);
    if (fits(shown)) return shown;
  }
  const std::size_t shortest = shown.size() - NameInPath(shown).size() + 1;
  while (shown.size() > shortest && !fits(shown + kLeftOut)) shown.pop_back();
  return shown + kLeftOut;
}

}  // namespace tidewell
