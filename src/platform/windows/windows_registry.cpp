#include "platform/windows/windows_registry.h"

#include <windows.h>

#include <algorithm>

namespace tidewell {

namespace {

// Whatever the user may do with a key: a device asks for nothing, a desktop refuses full access
// to the machine's keys.
constexpr REGSAM kAccess = MAXIMUM_ALLOWED;

HKEY HandleOf(RegistryRoot root) {
  if (root == RegistryRoot::kCurrentUser) return HKEY_CURRENT_USER;
  return root == RegistryRoot::kLocalMachine ? HKEY_LOCAL_MACHINE : nullptr;
}

BYTE* BytesAt(std::byte* data) {
  return reinterpret_cast<BYTE*>(data);
}

bool IsStringType(std::uint32_t type) {
  return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

bool EndsInZero(std::span<const std::byte> data) {
  const std::size_t size = data.size();
  return size % 2 == 0 && size >= 2 && data[size - 1] == std::byte{0} &&
         data[size - 2] == std::byte{0};
}

class WindowsRegistryKey final : public RegistryKey {
 public:
  explicit WindowsRegistryKey(HKEY key) : key_(key) {}
  ~WindowsRegistryKey() override { RegCloseKey(key_); }
  WindowsRegistryKey(const WindowsRegistryKey&) = delete;
  WindowsRegistryKey& operator=(const WindowsRegistryKey&) = delete;

  RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                       ValueInfo& info) override {
    DWORD type = 0;
    auto size = static_cast<DWORD>(buffer.size());
    BYTE* const data = buffer.empty() ? nullptr : BytesAt(buffer.data());
    const LSTATUS status = RegQueryValueExW(key_, name.c_str(), nullptr, &type, data, &size);
    info = {static_cast<std::uint32_t>(type), static_cast<std::uint32_t>(size)};
    return status;
  }

  RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                     std::span<const std::byte> data) override {
    if (data.empty() || !IsStringType(type) || EndsInZero(data))
      return SetAsGiven(name, type, data);
    // The system looks one character past a string without an end and stores that too if it is
    // zero; so it is shown another one.
    std::vector<std::byte> guarded(data.begin(), data.end());
    guarded.resize(data.size() + 2 * sizeof(wchar_t), std::byte{0xFF});
    return SetAsGiven(name, type, std::span(guarded).first(data.size()));
  }

  RegistryStatus DeleteValue(const std::wstring& name) override {
    return RegDeleteValueW(key_, name.c_str());
  }

  RegistryStatus CountValues(ValueCounts& counts) override {
    DWORD values = 0;
    DWORD longestName = 0;
    DWORD longestData = 0;
    const LSTATUS status =
        RegQueryInfoKeyW(key_, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &values,
                         &longestName, &longestData, nullptr, nullptr);
    counts = {static_cast<std::uint32_t>(values), static_cast<std::uint32_t>(longestName),
              static_cast<std::uint32_t>(longestData)};
    return status;
  }

  RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                           std::uint32_t dataCapacity, EnumeratedValue& value) override {
    DWORD nameLength = nameCapacity;
    DWORD type = 0;
    DWORD size = dataCapacity;
    value.name.resize(nameCapacity);
    value.data.resize(std::max(dataCapacity, 1u));  // without a buffer every size would do
    const LSTATUS status = RegEnumValueW(key_, index, value.name.data(), &nameLength, nullptr,
                                         &type, BytesAt(value.data.data()), &size);
    if (status != ERROR_SUCCESS) return status;
    value.name.resize(nameLength);
    value.type = type;
    value.data.resize(size);
    return kStatusSuccess;
  }

  RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                            std::wstring& name) override {
    DWORD length = nameCapacity;
    name.resize(nameCapacity);
    const LSTATUS status =
        RegEnumKeyExW(key_, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_SUCCESS) name.resize(length);
    return status;
  }

  void Flush() override { RegFlushKey(key_); }

  HKEY Handle() const { return key_; }

 private:
  RegistryStatus SetAsGiven(const std::wstring& name, std::uint32_t type,
                            std::span<const std::byte> data) {
    return RegSetValueExW(key_, name.c_str(), 0, type, reinterpret_cast<const BYTE*>(data.data()),
                          static_cast<DWORD>(data.size()));
  }

  HKEY key_;
};

LSTATUS DeleteKeyTree(HKEY parent, const wchar_t* path) {
  LSTATUS status = RegDeleteKeyW(parent, path);
  if (status != ERROR_ACCESS_DENIED) return status;
  // A desktop refuses to delete a key with subkeys, a device deletes them as well.
  HKEY handle = nullptr;
  status = RegOpenKeyExW(parent, path, 0, kAccess, &handle);
  if (status != ERROR_SUCCESS) return status;
  WindowsRegistryKey key(handle);
  constexpr std::uint32_t kNameCapacity = 256;
  std::wstring subkey;
  while (status == ERROR_SUCCESS && key.EnumSubkey(0, kNameCapacity, subkey) == kStatusSuccess) {
    status = DeleteKeyTree(handle, subkey.c_str());
  }
  return status == ERROR_SUCCESS ? RegDeleteKeyW(parent, path) : status;
}

}  // namespace

std::unique_ptr<RegistryKey> WindowsRegistry::Open(RegistryRoot root, const std::wstring& path) {
  const HKEY parent = HandleOf(root);
  HKEY key = nullptr;
  if (!parent || RegOpenKeyExW(parent, path.c_str(), 0, kAccess, &key) != ERROR_SUCCESS) {
    return nullptr;
  }
  return std::make_unique<WindowsRegistryKey>(key);
}

std::unique_ptr<RegistryKey> WindowsRegistry::Create(RegistryRoot root, const std::wstring& path) {
  const HKEY parent = HandleOf(root);
  HKEY key = nullptr;
  if (!parent || RegCreateKeyExW(parent, path.c_str(), 0, nullptr, 0, kAccess, nullptr, &key,
                                 nullptr) != ERROR_SUCCESS) {
    return nullptr;
  }
  return std::make_unique<WindowsRegistryKey>(key);
}

RegistryStatus WindowsRegistry::DeleteTree(RegistryRoot root, const std::wstring& path) {
  const HKEY parent = HandleOf(root);
  // An empty path names the root itself, which is nobody's to delete.
  if (!parent || path.c_str()[0] == L'\0') return kStatusFileNotFound;
  return DeleteKeyTree(parent, path.c_str());
}

}  // namespace tidewell
