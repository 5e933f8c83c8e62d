// Fills registries and renders them as text, for tests on either registry.
#pragma once

#include <string>

#include "platform/registry.h"

namespace tidewell {

// Any type with any data: unterminated strings, numbers of three bytes. The key is created when it
// is missing.
void SetRaw(Registry& registry, RegistryRoot root, const std::wstring& path,
            const std::wstring& name, std::uint32_t type, std::span<const std::byte> data);

// The whole tree as UTF-8 text, whatever the order of enumeration: names sorted, a key's values
// before its subkeys. Data that its type does not suit is shown as bytes.
//   [Software\Example]
//   Count = 7
//   Name = "text"
//   State = binary 01 FF
//   Odd = string 41 00
std::string DumpTree(Registry& registry, RegistryRoot root, const std::wstring& path);

}  // namespace tidewell
