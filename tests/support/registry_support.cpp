#include "tests/support/registry_support.h"

#include <map>
#include <set>
#include <sstream>

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

bool SetRaw(Registry& registry, RegistryRoot root, const std::wstring& path,
            const std::wstring& name, std::uint32_t type, std::span<const std::byte> data) {
  const auto key = registry.Create(root, path);
  return key && key->Set(name, type, data) == kStatusSuccess;
}

bool SetDword(Registry& registry, RegistryRoot root, const std::wstring& path,
              const std::wstring& name, std::uint32_t number) {
  const auto byteAt = [&](unsigned shift) { return static_cast<std::byte>(number >> shift); };
  const std::byte data[] = {byteAt(0), byteAt(8), byteAt(16), byteAt(24)};
  return SetRaw(registry, root, path, name, kTypeDword, data);
}

bool SetString(Registry& registry, RegistryRoot root, const std::wstring& path,
               const std::wstring& name, const std::wstring& text) {
  return SetRaw(registry, root, path, name, kTypeString, BytesOf(text + L'\0'));
}

bool SetBinary(Registry& registry, RegistryRoot root, const std::wstring& path,
               const std::wstring& name, const std::vector<unsigned char>& bytes) {
  return SetRaw(registry, root, path, name, kTypeBinary, std::as_bytes(std::span(bytes)));
}

std::optional<std::uint32_t> FindDword(Registry& registry, RegistryRoot root,
                                       const std::wstring& path, const std::wstring& name) {
  const auto key = registry.Open(root, path);
  std::byte data[4];
  ValueInfo info;
  if (!key || key->Query(name, data, info) != kStatusSuccess) return std::nullopt;
  if (info.type != kTypeDword || info.size != sizeof data) return std::nullopt;
  return NumberOf(data);
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

bool IsOldOrNew(const std::string& before, const std::string& after, const std::string& left) {
  std::istringstream olds(before);
  std::istringstream news(after);
  std::istringstream lines(left);
  std::string old;
  std::string current;
  for (std::string line; std::getline(lines, line);) {
    if (!std::getline(olds, old) || !std::getline(news, current)) return false;
    if (line != old && line != current) return false;
  }
  return !std::getline(olds, old) && !std::getline(news, current);
}

}  // namespace tidewell
