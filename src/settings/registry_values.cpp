#include "settings/registry_values.h"

#include <algorithm>
#include <array>
#include <bit>
#include <span>
#include <vector>

#include "platform/text.h"

namespace tidewell {

namespace {

// Nearly every text fits, so that it costs one query.
constexpr std::size_t kUsualTextBytes = 512;

void NoteRefusal(RegistryStatus status, bool* refused) {
  if (refused && status != kStatusSuccess && status != kStatusFileNotFound) *refused = true;
}

}  // namespace

std::wstring TextUpToZero(std::span<const std::byte> bytes) {
  std::wstring text = TextOfBytes(bytes);
  text.resize(std::min(text.size(), text.find(L'\0')));
  return text;
}

std::optional<std::uint32_t> FindDword(ValueSource* values, const std::wstring& name,
                                       bool* refused) {
  static_assert(std::endian::native == std::endian::little, "registry numbers are little-endian");
  std::array<std::byte, 4> bytes{};
  ValueInfo info;
  const RegistryStatus status = values ? values->Query(name, bytes, info) : kStatusAccessDenied;
  const bool isTooLong = status == kStatusMoreData && info.size > bytes.size();
  if (!isTooLong) NoteRefusal(status, refused);
  // Fewer bytes would leave a number of which only a part was ever written.
  if (status != kStatusSuccess || info.size != bytes.size()) return std::nullopt;
  return std::bit_cast<std::uint32_t>(bytes);
}

std::optional<std::wstring> FindString(ValueSource* values, const std::wstring& name,
                                       bool* refused) {
  std::array<std::byte, kUsualTextBytes> usual;
  ValueInfo info;
  const RegistryStatus status = values ? values->Query(name, usual, info) : kStatusAccessDenied;
  if (status == kStatusSuccess) return TextUpToZero(std::span(usual).first(info.size));
  if (status != kStatusMoreData) {
    NoteRefusal(status, refused);
    return std::nullopt;
  }

  std::vector<std::byte> bytes(info.size);
  RegistryStatus again = values->Query(name, bytes, info);
  // The value may have grown in between.
  if (again == kStatusSuccess && info.size > bytes.size()) again = kStatusMoreData;
  NoteRefusal(again, refused);
  if (again != kStatusSuccess) return std::nullopt;
  return TextUpToZero(std::span(bytes).first(info.size));
}

std::uint32_t ReadDword(ValueSource* values, const std::wstring& name, std::uint32_t defaultValue,
                        bool* refused) {
  return FindDword(values, name, refused).value_or(defaultValue);
}

bool ReadString(ValueSource* values, const std::wstring& name, const std::wstring& defaultText,
                std::wstring& text, bool* refused) {
  std::optional<std::wstring> found = FindString(values, name, refused);
  if (!found) {
    text = defaultText;
    return false;
  }
  text = *std::move(found);
  return true;
}

void WriteDword(RegistryKey* key, const std::wstring& name, std::uint32_t value) {
  const auto bytes = std::bit_cast<std::array<std::byte, 4>>(value);
  if (key) key->Set(name, kTypeDword, bytes);
}

void WriteString(RegistryKey* key, const std::wstring& name, const std::wstring& text) {
  if (!key) return;
  const std::wstring_view withTerminator(text.c_str(), text.size() + 1);
  key->Set(name, kTypeString, BytesOf(withTerminator));
}

void WriteDwordOrDelete(RegistryKey* key, const std::wstring& name, std::uint32_t value,
                        std::uint32_t defaultValue) {
  if (value != defaultValue) {
    WriteDword(key, name, value);
  } else if (key) {
    key->DeleteValue(name);
  }
}

void WriteStringOrDelete(RegistryKey* key, const std::wstring& name, const std::wstring& text,
                         const std::wstring& defaultText) {
  if (text != defaultText) {
    WriteString(key, name, text);
  } else if (key) {
    key->DeleteValue(name);
  }
}

}  // namespace tidewell
