// Single registry values, read with a default and written without a report: what settings, pages
// and add-ons share. Null reads as empty and writes nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/registry.h"

namespace tidewell {

// The text that a value's bytes are, up to the first zero.
std::wstring TextUpToZero(std::span<const std::byte> bytes);

// Whoever passes `refused` learns whether nothing means that nothing usable is stored: it becomes
// true when the registry would not say, as for a null key, and is left alone otherwise.

// Nothing unless the value holds exactly four bytes; its stored type does not matter.
std::optional<std::uint32_t> FindDword(ValueSource* values, const std::wstring& name,
                                       bool* refused = nullptr);
// Nothing when the value is absent. Its bytes count as text whatever their stored type, up to the
// first zero; a missing terminator or an odd last byte does no harm.
std::optional<std::wstring> FindString(ValueSource* values, const std::wstring& name,
                                       bool* refused = nullptr);

std::uint32_t ReadDword(ValueSource* values, const std::wstring& name, std::uint32_t defaultValue,
                        bool* refused = nullptr);
// True when the value was read; `text` holds it or the default.
bool ReadString(ValueSource* values, const std::wstring& name, const std::wstring& defaultText,
                std::wstring& text, bool* refused = nullptr);

void WriteDword(RegistryKey* key, const std::wstring& name, std::uint32_t value);
void WriteString(RegistryKey* key, const std::wstring& name, const std::wstring& text);

// The registry holds only what differs from its default: an equal value is deleted instead.
// Texts are compared exactly.
void WriteDwordOrDelete(RegistryKey* key, const std::wstring& name, std::uint32_t value,
                        std::uint32_t defaultValue);
void WriteStringOrDelete(RegistryKey* key, const std::wstring& name, const std::wstring& text,
                         const std::wstring& defaultText);

}  // namespace tidewell
