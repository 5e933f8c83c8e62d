// The device's property database over a text of categories, read whole when it is mounted.
#include <windbase.h>

#include <array>
#include <cstring>
#include <list>
#include <span>

#include "platform/desktop/pim_volume.h"
#include "platform/pim_properties.h"
#include "platform/text.h"
#include "platform/whole_file.h"
#include "platform/windows/windows_files.h"

namespace tidewell {

namespace {

struct Cursor {
  HANDLE handle = nullptr;  // an event of the system's, so that CloseHandle closes it
  std::size_t next = 0;
  bool autoIncrement = false;
};

struct MountedVolume {
  CEGUID guid{};
  std::vector<PimRecord> records;
  std::list<Cursor> cursors;
};

std::list<MountedVolume>& Volumes() {
  static std::list<MountedVolume> volumes;
  return volumes;
}

bool SameGuid(const CEGUID& left, const CEGUID& right) {
  return std::memcmp(&left, &right, sizeof(CEGUID)) == 0;
}

MountedVolume* FindVolume(PCEGUID guid) {
  for (MountedVolume& volume : Volumes()) {
    if (guid && SameGuid(volume.guid, *guid)) return &volume;
  }
  SetLastError(ERROR_INVALID_PARAMETER);
  return nullptr;
}

struct OpenDatabase {
  const std::vector<PimRecord>* records = nullptr;
  Cursor* cursor = nullptr;
};

OpenDatabase FindDatabase(HANDLE handle) {
  for (MountedVolume& volume : Volumes()) {
    for (Cursor& cursor : volume.cursors) {
      if (cursor.handle == handle) return {&volume.records, &cursor};
    }
  }
  SetLastError(ERROR_INVALID_HANDLE);
  return {};
}

// Object identifiers only have to differ within a volume and from 0.
constexpr CEOID kDatabaseOid = 0x01000000;
CEOID RecordOid(std::size_t record) {
  return static_cast<CEOID>(record + 1);
}

// Nothing for a file that cannot be read, or is larger than any text of categories.
std::optional<std::string> ReadVolumeFile(const wchar_t* path) {
  constexpr std::size_t kLargestVolume = 256 * 1024;
  WindowsFiles files;
  const auto [bytes, status] = ReadWholeFile(files, path, kLargestVolume);
  if (status != FileStatus::kOk) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

std::wstring WideOf(const std::string& utf8) {
  const int size = static_cast<int>(utf8.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
  return wide;
}

// Makes room for `size` bytes under the caller's rule; false sets the last error.
bool Reserve(LPBYTE* buffer, LPDWORD capacity, std::size_t size, bool mayReallocate) {
  if (*buffer && *capacity >= size) return true;
  if (!mayReallocate) {
    *capacity = static_cast<DWORD>(size);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return false;
  }
  void* grown = *buffer ? LocalReAlloc(*buffer, size, LMEM_MOVEABLE) : LocalAlloc(LPTR, size);
  if (!grown) return false;
  *buffer = static_cast<LPBYTE>(grown);
  *capacity = static_cast<DWORD>(size);
  return true;
}

// `name` points into the caller's buffer.
CEPROPVAL ValueOf(const PimRecord& record, CEPROPID id, wchar_t* name) {
  CEPROPVAL value{};
  value.propid = id;
  if (id == kPimNameProperty && !record.name.empty()) {
    value.val.lpwstr = name;
  } else if (id == kPimIdProperty && record.id) {
    value.val.ulVal = *record.id;
  } else if (id == kPimFlagProperty && record.flag) {
    value.val.ulVal = *record.flag;
  } else {
    value.wFlags = CEDB_PROPNOTFOUND;
  }
  return value;
}

}  // namespace

}  // namespace tidewell

using namespace tidewell;

BOOL CeMountDBVolEx(PCEGUID pGuid, LPWSTR lpwszDBVol, CEVOLUMEOPTIONS*, DWORD) {
  static DWORD mountCount = 0;
  const std::optional<std::string> text = ReadVolumeFile(lpwszDBVol);
  if (!pGuid || !text) {
    SetLastError(ERROR_FILE_NOT_FOUND);
    return FALSE;
  }
  *pGuid = {++mountCount, 0, 0, 0};
  Volumes().push_back({*pGuid, ParsePimVolume(*text), {}});
  return TRUE;
}

BOOL CeUnmountDBVol(PCEGUID pGuid) {
  if (!FindVolume(pGuid)) return FALSE;
  Volumes().remove_if([&](const MountedVolume& volume) { return SameGuid(volume.guid, *pGuid); });
  return TRUE;
}

HANDLE CeOpenDatabaseInSession(HANDLE, PCEGUID pGuid, PCEOID poid, LPWSTR lpwszName,
                               SORTORDERSPECEX*, DWORD dwFlags, CENOTIFYREQUEST*) {
  MountedVolume* volume = FindVolume(pGuid);
  if (!volume) return INVALID_HANDLE_VALUE;
  if (!EqualIgnoringCase(kCategoryDatabase, lpwszName)) {
    SetLastError(ERROR_FILE_NOT_FOUND);
    return INVALID_HANDLE_VALUE;
  }
  const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  if (!handle) return INVALID_HANDLE_VALUE;
  // The system may give a closed handle's number out again.
  volume->cursors.remove_if([&](const Cursor& cursor) { return cursor.handle == handle; });
  volume->cursors.push_back({handle, 0, (dwFlags & CEDB_AUTOINCREMENT) != 0});
  if (poid) *poid = kDatabaseOid;
  return handle;
}

CEOID CeSeekDatabaseEx(HANDLE hDatabase, DWORD dwSeekType, DWORD dwValue, WORD, LPDWORD index) {
  const OpenDatabase database = FindDatabase(hDatabase);
  if (!database.cursor) return 0;
  if (dwSeekType != CEDB_SEEK_BEGINNING || dwValue >= database.records->size()) {
    SetLastError(ERROR_SEEK);
    return 0;
  }
  database.cursor->next = dwValue;
  if (index) *index = dwValue;
  return RecordOid(dwValue);
}

CEOID CeReadRecordPropsEx(HANDLE hDbase, DWORD dwFlags, LPWORD lpcPropID, CEPROPID* rgPropID,
                          LPBYTE* lplpBuffer, LPDWORD lpcbBuffer, HANDLE) {
  const OpenDatabase database = FindDatabase(hDbase);
  if (!database.cursor) return 0;
  const std::size_t at = database.cursor->next;
  if (at >= database.records->size()) {
    SetLastError(ERROR_NO_MORE_ITEMS);
    return 0;
  }
  const PimRecord& record = (*database.records)[at];
  const std::wstring name = WideOf(record.name);
  const std::span<const CEPROPID> ids(rgPropID, *lpcPropID);
  const std::size_t nameSize = (name.size() + 1) * sizeof(wchar_t);
  const std::size_t size = ids.size() * sizeof(CEPROPVAL) + nameSize;
  const bool mayReallocate = (dwFlags & CEDB_ALLOWREALLOC) != 0;
  if (!Reserve(lplpBuffer, lpcbBuffer, size, mayReallocate)) return 0;
  // The values stand first, the name behind them.
  auto* value = reinterpret_cast<CEPROPVAL*>(*lplpBuffer);
  auto* nameInBuffer = reinterpret_cast<wchar_t*>(value + ids.size());
  for (const CEPROPID id : ids) *value++ = ValueOf(record, id, nameInBuffer);
  std::memcpy(nameInBuffer, name.c_str(), nameSize);
  if (database.cursor->autoIncrement) ++database.cursor->next;
  return RecordOid(at);
}
