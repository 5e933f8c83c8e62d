// What the folder, file and file name dialogs share: the entries of a folder in their order, and
// device paths ("\My Documents\Skins"; the root alone ends with its backslash).
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/locale.h"

namespace tidewell {

inline constexpr std::uint32_t kFolderTag = 0x10000;
inline constexpr std::uint32_t kUpTag = 0x20000;  // not an entry: the way to the folder above

struct ListedEntry {
  std::wstring name;
  std::uint32_t tag = 0;  // low 16 bits: running index as found, counted from 0

  bool IsFolder() const { return (tag & kFolderTag) != 0; }
  bool IsUp() const { return (tag & kUpTag) != 0; }
};

struct FolderListing {
  std::vector<ListedEntry> entries;  // folders first, each kind as the user's locale sorts
  bool isReadable = false;  // false when the folder could not be searched, or not to the end
};

// The entries that fit `pattern` ("\folder\*.dll") and that `accepts` takes.
FolderListing ListFolder(Files& files, Locale& locale, const std::wstring& pattern,
                         const std::function<bool(const FileEntry&)>& accepts);

// False for "\" and for anything that is no absolute path.
bool HasParent(std::wstring_view folder);
std::wstring ParentFolder(std::wstring_view path);
std::wstring_view NameInPath(std::wstring_view path);

// The root always exists; a path with wildcards never does.
bool FolderExists(Files& files, const std::wstring& path);
bool FileExists(Files& files, const std::wstring& path);
// The folder itself, else the nearest one above it that exists, else the root.
std::wstring NearestFolder(Files& files, std::wstring_view wanted);

// `path` if it fits, else as many of its last names as fit behind "...", at least the beginning of
// the last one.
std::wstring ShortenPath(const std::wstring& path,
                         const std::function<bool(const std::wstring&)>& fits);

}  // namespace tidewell
