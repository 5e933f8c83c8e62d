#include "categories/windows/pim_database.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kDeviceVolume = L"\\pim.vol";

}  // namespace

HANDLE PimDatabase::Open(std::wstring databaseName, bool autoIncrement,
                         CENOTIFYREQUEST* notifyRequest, SORTORDERSPECEX* sortOrder,
                         std::wstring volumePath) {
  Close();
  if (volumePath.empty()) volumePath = kDeviceVolume;
  mounted_ = CeMountDBVolEx(&volume_, volumePath.data(), nullptr, OPEN_EXISTING) != FALSE;
  if (!mounted_) return nullptr;
  const HANDLE opened =
      CeOpenDatabaseInSession(nullptr, &volume_, &database_, databaseName.data(), sortOrder,
                              autoIncrement ? CEDB_AUTOINCREMENT : 0, notifyRequest);
  handle_ = opened == INVALID_HANDLE_VALUE ? nullptr : opened;
  return handle_;
}

CEOID PimDatabase::Seek(DWORD seekType, DWORD value) {
  DWORD index = 0;
  return CeSeekDatabaseEx(handle_, seekType, value, 0, &index);
}

void PimDatabase::Close() {
  if (handle_) CloseHandle(handle_);
  if (mounted_) CeUnmountDBVol(&volume_);
  handle_ = nullptr;
  mounted_ = false;
}

}  // namespace tidewell
