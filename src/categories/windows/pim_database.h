// One database of the device's property database volume, open while the object lives.
#pragma once

#include <windbase.h>

#include <string>

namespace tidewell {

class PimDatabase {
 public:
  PimDatabase() = default;
  ~PimDatabase() { Close(); }
  PimDatabase(const PimDatabase&) = delete;
  PimDatabase& operator=(const PimDatabase&) = delete;

  // Mounts the volume, the device's own when none is named, and opens the database. Null when
  // either fails. What was open before is closed.
  HANDLE Open(std::wstring databaseName, bool autoIncrement,
              CENOTIFYREQUEST* notifyRequest = nullptr, SORTORDERSPECEX* sortOrder = nullptr,
              std::wstring volumePath = {});
  // The identifier of the record there, 0 for failure.
  CEOID Seek(DWORD seekType, DWORD value);
  void Close();

  HANDLE Handle() const { return handle_; }

 private:
  HANDLE handle_ = nullptr;
  CEGUID volume_{};
  CEOID database_ = 0;
  bool mounted_ = false;
};

}  // namespace tidewell
