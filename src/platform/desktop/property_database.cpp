// The device's property database over a volume file, read whole when it is mounted.
#include <windbase.h>

#include <cstring>
#include <list>

#include "platform/desktop/pim_volume.h"
#include "platform/text.h"

namespace tidewell {

namespace {

struct OpenDatabase {
  HANDLE handle = nullptr;  // an event of the system's, so that CloseHandle closes it
  std::size_t databaseIndex = 0;
  std::size_t next = 0;
  bool autoIncrement = false;
};

struct MountedVolume {
  CEGUID guid{};
  PimVolume volume;
  std::list<OpenDatabase> open;
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

struct OpenCursor {
  const VolumeDatabase* database = nullptr;
  OpenDatabase* open = nullptr;
};

OpenCursor FindCursor(HANDLE handle) {
  for (MountedVolume& volume : Volumes()) {
    for (OpenDatabase& open : volume.open) {
      if (open.handle == handle) return {&volume.volume.databases[open.databaseIndex], &open};
    }
  }
  SetLastError(ERROR_INVALID_HANDLE);
  return {};
}

// Object identifiers only have to differ within a volume and from 0.
CEOID RecordOid(const OpenCursor& cursor, std::size_t record) {
  return static_cast<CEOID>((cursor.open->databaseIndex << 24) + record + 1);
}

std::vector<std::byte> ReadVolumeFile(const wchar_t* path) {
  std::vector<std::byte> bytes;
  const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return bytes;
  constexpr DWORD kLargestVolume = 64 * 1024 * 1024;
  const DWORD size = GetFileSize(file, nullptr);
  if (size <= kLargestVolume) {
    DWORD read = 0;
    bytes.resize(size);
    if (!ReadFile(file, bytes.data(), size, &read, nullptr)) read = 0;
    bytes.resize(read);
  }
  CloseHandle(file);
  return bytes;
}

const VolumeProperty* FindProperty(const VolumeRecord& record, CEPROPID id) {
  for (const VolumeProperty& property : record.properties) {
    if (property.id == id) return &property;
  }
  return nullptr;
}

std::vector<CEPROPID> IdsOf(const VolumeRecord& record) {
  std::vector<CEPROPID> ids;
  for (const VolumeProperty& property : record.properties) ids.push_back(property.id);
  return ids;
}

std::size_t SizeOf(const VolumeRecord& record, const std::vector<CEPROPID>& ids) {
  std::size_t size = 0;
  for (const CEPROPID id : ids) {
    const VolumeProperty* property = FindProperty(record, id);
    size += sizeof(CEPROPVAL);
    if (property && IsTextProperty(id)) size += (property->text.size() + 1) * sizeof(wchar_t);
  }
  return size;
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

// The values stand first, the texts that they point to behind them.
void FillValues(const VolumeRecord& record, const std::vector<CEPROPID>& ids, LPBYTE buffer) {
  auto* value = reinterpret_cast<CEPROPVAL*>(buffer);
  auto* text = reinterpret_cast<wchar_t*>(value + ids.size());
  for (const CEPROPID id : ids) {
    const VolumeProperty* property = FindProperty(record, id);
    *value = {};
    value->propid = id;
    if (!property) {
      value->wFlags = CEDB_PROPNOTFOUND;
    } else if (IsTextProperty(id)) {
      value->val.lpwstr = text;
      std::memcpy(text, property->text.c_str(), (property->text.size() + 1) * sizeof(wchar_t));
      text += property->text.size() + 1;
    } else {
      value->val.ulVal = property->number;
    }
    ++value;
  }
}

}  // namespace

}  // namespace tidewell

using namespace tidewell;

BOOL CeMountDBVolEx(PCEGUID pGuid, LPWSTR lpwszDBVol, CEVOLUMEOPTIONS*, DWORD) {
  static DWORD mountCount = 0;
  std::optional<PimVolume> volume = ParsePimVolume(ReadVolumeFile(lpwszDBVol));
  if (!pGuid || !volume) {
    SetLastError(ERROR_FILE_NOT_FOUND);
    return FALSE;
  }
  *pGuid = {++mountCount, 0, 0, 0};
  Volumes().push_back({*pGuid, *std::move(volume), {}});
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
  for (std::size_t i = 0; i < volume->volume.databases.size(); ++i) {
    if (!EqualIgnoringCase(volume->volume.databases[i].name, lpwszName)) continue;
    const HANDLE handle = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    if (!handle) return INVALID_HANDLE_VALUE;
    // The system may give a closed handle's number out again.
    volume->open.remove_if([&](const OpenDatabase& open) { return open.handle == handle; });
    volume->open.push_back({handle, i, 0, (dwFlags & CEDB_AUTOINCREMENT) != 0});
    if (poid) *poid = static_cast<CEOID>((i + 1) << 24);
    return handle;
  }
  SetLastError(ERROR_FILE_NOT_FOUND);
  return INVALID_HANDLE_VALUE;
}

CEOID CeSeekDatabaseEx(HANDLE hDatabase, DWORD dwSeekType, DWORD dwValue, WORD, LPDWORD index) {
  const OpenCursor cursor = FindCursor(hDatabase);
  if (!cursor.database) return 0;
  if (dwSeekType != CEDB_SEEK_BEGINNING || dwValue >= cursor.database->records.size()) {
    SetLastError(ERROR_SEEK);
    return 0;
  }
  cursor.open->next = dwValue;
  if (index) *index = dwValue;
  return RecordOid(cursor, dwValue);
}

CEOID CeReadRecordPropsEx(HANDLE hDbase, DWORD dwFlags, LPWORD lpcPropID, CEPROPID* rgPropID,
                          LPBYTE* lplpBuffer, LPDWORD lpcbBuffer, HANDLE) {
  const OpenCursor cursor = FindCursor(hDbase);
  if (!cursor.database) return 0;
  const std::size_t at = cursor.open->next;
  if (at >= cursor.database->records.size()) {
    SetLastError(ERROR_NO_MORE_ITEMS);
    return 0;
  }
  const VolumeRecord& record = cursor.database->records[at];
  const std::vector<CEPROPID> ids =
      rgPropID ? std::vector<CEPROPID>(rgPropID, rgPropID + *lpcPropID) : IdsOf(record);
  const bool mayReallocate = (dwFlags & CEDB_ALLOWREALLOC) != 0;
  if (!Reserve(lplpBuffer, lpcbBuffer, SizeOf(record, ids), mayReallocate)) return 0;
  FillValues(record, ids, *lplpBuffer);
  *lpcPropID = static_cast<WORD>(ids.size());
  if (cursor.open->autoIncrement) ++cursor.open->next;
  return RecordOid(cursor, at);
}
