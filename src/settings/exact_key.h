// A registry key that is to hold certain values and nothing else. It is brought there so that each
// value is at every moment the old or the new one, and that nothing goes before all is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"
#include "platform/text.h"

namespace tidewell {

// What a key is to hold under a name.
struct KeyValue {
  std::wstring name;
  std::uint32_t type = 0;
  std::vector<std::byte> data;  // empty for a value that is not to be there
};

KeyValue NumberValue(std::wstring name, std::uint32_t number);
KeyValue TextValue(std::wstring name, const std::wstring& text);

// For sets and maps of names, which differ in more than letter case.
struct FoldedLess {
  bool operator()(std::wstring_view left, std::wstring_view right) const {
    return CompareFolded(left, right) < 0;
  }
};

// What becomes of other values in the key, and of its subkeys.
enum class Others : std::uint8_t { kStay, kGo };

// What is there already is not written again; after a refusal nothing more is. True when anything
// was written or deleted. The caller flushes.
bool StoreExactly(Registry& registry, const std::wstring& path, RegistryKey& key,
                  std::span<const KeyValue> values, Others others);

// The value at `index` with all of its data and a name of any length.
RegistryStatus EnumWholeValue(RegistryKey& key, std::uint32_t index, EnumeratedValue& value);

// Whether there is a value, or may be one.
bool HoldsAnything(RegistryKey& key);

// The capacity of names that are enumerated, with the terminating zero.
inline constexpr std::uint32_t kNameCapacity = 256;

}  // namespace tidewell
