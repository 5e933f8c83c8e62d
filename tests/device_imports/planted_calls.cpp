// Calls that the check must find, beside others that it must let pass.
#include <windows.h>

#include <cstring>
#include <string>

bool PlantedCalls(const std::wstring& path) {
  const bool isLong = std::wcslen(path.c_str()) > 8;            // the C runtime's
  SetWindowLongPtrW(GetActiveWindow(), GWLP_USERDATA, isLong);  // an exception, a device's
  RegDeleteTreeW(HKEY_CURRENT_USER, path.c_str());              // planted
  return ReplaceFileW(path.c_str(), path.c_str(), nullptr, 0, nullptr, nullptr);  // planted
}
