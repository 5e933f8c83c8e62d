#include "tests/support/registry_support.h"

#include <map>
#include <set>

#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kNameCapacity = 16384;
constexpr std::uint32_t kDataCapacity = 1 << 20;

std::uint32_t NumberOf(std::span<const std::byte> data) {
  std::uint32_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = number << 8 | std::to_integer<std::uint32_t>(data[i]);
  return number;
}

// True for whole units that end in their only zero.
bool IsProperString(std::span<const std::byte> data) {
  const std::wstring text = TextOfBytes(data);
  return data.size() % 2 == 0 && !text.empty() && text.find(L'\0') == text.size() - 1;
}

std::string Hex(std::span<const std::byte> data) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const std::byte byte : data) {
    text += ' ';
    text += kDigits[std::to_integer<unsigned>(byte) >> 4];
    text += kDigits[std::to_integer<unsigned>(byte) & 15];
  }
  return text;
}

std::string Render(std::uint32_t type, std::span<const std::byte> data) {
  if (type == kTypeDword && data.size() == 4) return std::to_string(NumberOf(data));
  if (type == kTypeString && IsProperString(data)) {
    return '"' + Utf8(TextOfBytes(data.first(data.size() - 2))) + '"';
  }
  const std::string name = type == kTypeDword    ? "dword"
                           : type == kTypeString ? "string"
                           : type == kTypeBinary ? "binary"
                                                 : "type " + std::to_string(type);
  return name + Hex(data);
}

}  // namespace

void SetRaw(Registry& registry, RegistryRoot root, const std::wstring& path,
            const std::wstring& name, std::uint32_t type, std::span<const std::byte> data) {
  const auto key = registry.Create(root, path);
  if (key) key->Set(name, type, data);
}

std::string DumpTree(Registry& registry, RegistryRoot root, const std::wstring& path) {
  const auto key = registry.Open(root, path);
  if (!key) return {};
  struct FoldedOrder {
    bool operator()(const std::wstring& left, const std::wstring& right) const {
      return CompareFolded(left, right) < 0;
    }
  };
  std::map<std::wstring, std::string, FoldedOrder> values;
  EnumeratedValue value;
  for (std::uint32_t i = 0;
       key->EnumValue(i, kNameCapacity, kDataCapacity, value) == kStatusSuccess; ++i) {
    values.emplace(value.name, Render(value.type, value.data));
  }
  std::set<std::wstring, FoldedOrder> subkeys;
  std::wstring name;
  for (std::uint32_t i = 0; key->EnumSubkey(i, kNameCapacity, name) == kStatusSuccess; ++i) {
    subkeys.insert(name);
  }

  std::string text = '[' + Utf8(path) + "]\n";
  for (const auto& [each, data] : values) text += Utf8(each) + " = " + data + '\n';
  for (const std::wstring& each : subkeys) {
    text += DumpTree(registry, root, path.empty() ? each : JoinPath(path, each));
  }
  return text;
}

}  // namespace tidewell
