// The door to the registry: the system's own operations, capacities and status codes, no policy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace tidewell {

// A Windows error code; 0 is success.
using RegistryStatus = std::int32_t;
inline constexpr RegistryStatus kStatusSuccess = 0;
inline constexpr RegistryStatus kStatusFileNotFound = 2;
inline constexpr RegistryStatus kStatusAccessDenied = 5;
inline constexpr RegistryStatus kStatusMoreData = 234;
inline constexpr RegistryStatus kStatusNoMoreItems = 259;

// Registry value types, as the system numbers them. Others occur and pass through unchanged.
inline constexpr std::uint32_t kTypeString = 1;
inline constexpr std::uint32_t kTypeBinary = 3;
inline constexpr std::uint32_t kTypeDword = 4;

enum class RegistryRoot : std::uint8_t { kNone, kCurrentUser, kLocalMachine };

// What a query tells beside the data itself. `size` is in bytes and, when the buffer was too
// small, the size that would have been enough.
struct ValueInfo {
  std::uint32_t type = 0;
  std::uint32_t size = 0;
};

struct EnumeratedValue {
  std::wstring name;
  std::uint32_t type = 0;
  std::vector<std::byte> data;  // as stored: strings may lack their terminating zero
};

// How many values a key holds, and the room that its longest ones take.
struct ValueCounts {
  std::uint32_t values = 0;
  std::uint32_t longestName = 0;  // characters, without the terminating zero
  std::uint32_t longestData = 0;  // bytes
};

// What gives values by their names, which are compared without regard to case.
class ValueSource {
 public:
  virtual ~ValueSource() = default;

  // Reads a value into `buffer`. An empty buffer asks only for existence, type and size and
  // succeeds. A buffer that is too small gives kStatusMoreData, an absent value
  // kStatusFileNotFound; the buffer's contents are then of no meaning.
  virtual RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                               ValueInfo& info) = 0;
};

// One open key; destruction closes it.
class RegistryKey : public ValueSource {
 public:
  virtual RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                             std::span<const std::byte> data) = 0;
  virtual RegistryStatus DeleteValue(const std::wstring& name) = 0;

  virtual RegistryStatus CountValues(ValueCounts& counts) = 0;
  // The value at `index`, in no promised order. Capacities are the system's: `nameCapacity` in
  // characters with the terminating zero, `dataCapacity` in bytes. kStatusMoreData when one of
  // them is too small, kStatusNoMoreItems past the end; `value` is then of no meaning.
  virtual RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                                   std::uint32_t dataCapacity, EnumeratedValue& value) = 0;
  virtual RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                                    std::wstring& name) = 0;
  virtual void Flush() = 0;
};

// Paths are relative to a root, without a leading backslash. A null key means that the system
// refused or that the root is kNone.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) = 0;
  virtual std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) = 0;
  // Deletes the key with all its values and subkeys.
  virtual RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) = 0;
};

}  // namespace tidewell
