// Fills registries and renders them as text, for tests on either registry.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace tidewell {

// The key is created when it is missing. False when the registry refuses.
bool SetDword(Registry& registry, RegistryRoot root, const std::wstring& path,
              const std::wstring& name, std::uint32_t number);
// With its terminating zero, as programs write strings.
bool SetString(Registry& registry, RegistryRoot root, const std::wstring& path,
               const std::wstring& name, const std::wstring& text);
bool SetBinary(Registry& registry, RegistryRoot root, const std::wstring& path,
               const std::wstring& name, const std::vector<unsigned char>& bytes);
// Any type with any data: unterminated strings, numbers of three bytes.
bool SetRaw(Registry& registry, RegistryRoot root, const std::wstring& path,
            const std::wstring& name, std::uint32_t type, std::span<const std::byte> data);

// Nothing when the key or the value is absent, or is no number of four bytes.
std::optional<std::uint32_t> FindDword(Registry& registry, RegistryRoot root,
                                       const std::wstring& path, const std::wstring& name);

// The whole tree as UTF-8 text, whatever the order of enumeration: names sorted, a key's values
// before its subkeys. Data that its type does not suit is shown as bytes.
//   [Software\Example]
//   Count = 7
//   Name = "text"
//   State = binary 01 FF
//   Odd = string 41 00
std::string DumpTree(Registry& registry, RegistryRoot root, const std::wstring& path);

// Whether every line of `left` is the line that `before` or `after` has there, and none is missing.
bool IsOldOrNew(const std::string& before, const std::string& after, const std::string& left);

}  // namespace tidewell
