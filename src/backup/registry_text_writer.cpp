#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/section_names.h"
#include "platform/text.h"
#include "text_format/value_lines.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kNameCapacity = 256;

// The text of a string value: up to its first zero, or as far as it was stored.
void AppendData(std::wstring& text, std::span<const std::byte> data) {
  for (std::size_t i = 0; i + 1 < data.size(); i += 2) {
    const auto low = std::to_integer<unsigned>(data[i]);
    const auto high = std::to_integer<unsigned>(data[i + 1]);
    if ((low | high) == 0) return;
    text += static_cast<wchar_t>(low | (high << 8));
  }
}

std::uint32_t DwordOf(std::span<const std::byte> data) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < data.size() && i < 4; ++i) {
    number |= std::to_integer<std::uint32_t>(data[i]) << (8 * i);
  }
  return number;
}

// Exactly the data that an import of a value stores.
std::vector<std::byte> ImportedData(const ParsedValue& value) {
  if (!value.isNumber) return BytesOf(value.text + L'\0');
  const auto number = static_cast<std::uint32_t>(value.number);
  std::vector<std::byte> data(4);
  for (std::size_t i = 0; i < 4; ++i) data[i] = static_cast<std::byte>(number >> (8 * i));
  return data;
}

// Puts lines together and writes those that have room. In a copy every line has.
class LineWriter {
 public:
  LineWriter(TextWriter& stream, TextKind kind) : stream_(stream), kind_(kind) {}

  bool WriteHeader(std::wstring_view name) {
    const bool breaksLine = name.find(L'\n') != std::wstring_view::npos;
    line_ = L"\n[";
    line_ += kind_ == TextKind::kCopy && breaksLine ? ExactSectionName(name) : name;
    line_ += L"]\n";
    return WriteWhole();
  }
  bool WriteString(std::wstring_view name, std::wstring_view text) {
    line_.clear();
    AppendStringLine(line_, name, text);
    line_ += L'\n';
    if (kind_ == TextKind::kCopy) {
      const std::wstring ended = std::wstring(text) + L'\0';
      MakeExact({std::wstring(name), kTypeString, BytesOf(ended)});
    }
    return WriteWhole();
  }
  void WriteNumber(std::wstring_view name, std::uint32_t number) {
    line_.clear();
    AppendDwordLine(line_, name, number);
    line_ += L'\n';
    WriteWhole();
  }
  void WriteValue(const EnumeratedValue& value) {
    line_.clear();
    if (value.type == kTypeString) {
      text_.clear();
      AppendData(text_, value.data);
      AppendStringLine(line_, value.name, text_);
    } else if (value.type == kTypeDword) {
      AppendDwordLine(line_, value.name, DwordOf(value.data));
    } else if (kind_ == TextKind::kBackup) {
      return;
    }
    line_ += L'\n';
    if (kind_ == TextKind::kCopy) MakeExact(value);
    WriteWhole();
  }

 private:
  // Unless the reader makes exactly that value of the line, an exact one takes its place.
  void MakeExact(const EnumeratedValue& value) {
    if (IsReadAs(value)) return;
    line_.clear();
    AppendExactLine(line_, value);
    line_ += L'\n';
  }
  bool IsReadAs(const EnumeratedValue& value) {
    if (line_.find_first_of(std::wstring_view(L"\n\0", 2)) != line_.size() - 1) return false;
    if (!ParseValueLine(line_, parsed_) || parsed_.name != value.name) return false;
    if (value.type != (parsed_.isNumber ? kTypeDword : kTypeString)) return false;
    return !(!parsed_.isNumber && parsed_.text == kDeletedString) &&
           ImportedData(parsed_) == value.data;
  }

  bool WriteWhole() {
    if (kind_ == TextKind::kBackup && line_.size() > kBackupLineCapacity) return false;
    stream_.Write(line_);
    return true;
  }

  TextWriter& stream_;
  TextKind kind_;
  std::wstring line_;
  std::wstring text_;
  ParsedValue parsed_;
};

// Depth first, a key's values before its subkeys. The length of a header bounds the depth.
class BackupTreeWriter {
 public:
  BackupTreeWriter(Registry& registry, std::wstring path, TextWriter& stream)
      : registry_(registry), path_(std::move(path)), lines_(stream, TextKind::kBackup) {}

  // False when the key at `path_` is not to be had.
  bool WriteTree() {
    const std::unique_ptr<RegistryKey> key = registry_.Create(RegistryRoot::kCurrentUser, path_);
    if (!lines_.WriteHeader(path_) || !key) return key != nullptr;
    for (std::uint32_t i = 0;
         key->EnumValue(i, kNameCapacity, kBackupDataCapacity, value_) == kStatusSuccess; ++i) {
      lines_.WriteValue(value_);
    }
    const std::size_t parentLength = path_.size();
    for (std::uint32_t i = 0; key->EnumSubkey(i, kNameCapacity, subkey_) == kStatusSuccess; ++i) {
      path_ += L'\\';
      path_ += subkey_;
      WriteTree();
      path_.resize(parentLength);
    }
    return true;
  }

 private:
  Registry& registry_;
  std::wstring path_;
  LineWriter lines_;
  std::wstring subkey_;
  EnumeratedValue value_;
};

// The same for a copy: what cannot be read is passed over, and all else is taken along.
class CopyTreeWriter {
 public:
  CopyTreeWriter(Registry& registry, std::wstring path, TextWriter& stream)
      : registry_(registry), path_(std::move(path)), lines_(stream, TextKind::kCopy) {}

  // False when anything was passed over.
  bool WriteTree() {
    WriteKey();
    return isWhole_;
  }

 private:
  // A registry that refuses so many items in a row has no more to give.
  static constexpr int kMostRefusals = 32;
  static constexpr std::uint32_t kLongestName = 16 * 1024;
  static constexpr std::uint32_t kSmallData = 1024;
  static constexpr std::uint32_t kLargestData = kSmallData << 17;

  void WriteKey() {
    const std::unique_ptr<RegistryKey> key = registry_.Create(RegistryRoot::kCurrentUser, path_);
    if (!key) {
      isWhole_ = false;
      return;
    }
    lines_.WriteHeader(path_);
    WriteAll([&](std::uint32_t i) { return ReadValue(*key, i); },
             [this] { lines_.WriteValue(value_); });
    const std::size_t parentLength = path_.size();
    WriteAll([&](std::uint32_t i) { return key->EnumSubkey(i, kNameCapacity, subkey_); },
             [&] {
               path_ += L'\\';
               path_ += subkey_;
               WriteKey();
               path_.resize(parentLength);
             });
  }

  RegistryStatus ReadValue(RegistryKey& key, std::uint32_t index) {
    RegistryStatus status = key.EnumValue(index, kNameCapacity, kSmallData, value_);
    for (std::uint32_t room = kSmallData; status == kStatusMoreData && room <= kLargestData;
         room *= 4) {
      status = key.EnumValue(index, kLongestName, room, value_);
    }
    return status;
  }

  // Reads item after item and writes those that can be read.
  template <typename ReadItem, typename WriteItem>
  void WriteAll(ReadItem read, WriteItem write) {
    int refusals = 0;
    for (std::uint32_t i = 0; refusals < kMostRefusals; ++i) {
      const RegistryStatus status = read(i);
      if (status == kStatusNoMoreItems) return;
      if (status == kStatusSuccess) {
        refusals = 0;
        write();
      } else {
        ++refusals;
        isWhole_ = false;
      }
    }
  }

  Registry& registry_;
  std::wstring path_;
  LineWriter lines_;
  bool isWhole_ = true;
  std::wstring subkey_;
  EnumeratedValue value_;
};

}  // namespace

bool ExportRegistryText(Registry& registry, const CategoryCatalog& catalog,
                        const std::wstring& keyPath, TextWriter& stream, TextKind kind) {
  if (kind == TextKind::kCopy) WriteCopyMark(stream);
  const bool wasRead = WriteKeyTree(registry, keyPath, stream, kind);
  WriteCategoriesSection(catalog, stream, kind);
  WriteFiltersSection(catalog, stream, kind);
  return wasRead && (kind == TextKind::kBackup || catalog.WasReadWhole());
}

void WriteCopyMark(TextWriter& stream) {
  stream.Write(L"\n");
  stream.Write(kCopyMark);
}

bool WriteKeyTree(Registry& registry, const std::wstring& keyPath, TextWriter& stream,
                  TextKind kind) {
  return kind == TextKind::kCopy ? CopyTreeWriter(registry, keyPath, stream).WriteTree()
                                 : BackupTreeWriter(registry, keyPath, stream).WriteTree();
}

void WriteCategoriesSection(const CategoryCatalog& catalog, TextWriter& stream, TextKind kind) {
  LineWriter lines(stream, kind);
  lines.WriteHeader(kCategoriesSection);
  for (const auto& category : catalog.Categories()) {
    if (!lines.WriteString(L"Category", category->name)) continue;
    lines.WriteNumber(L"FiltersFlag", category->filterFlags);
    lines.WriteNumber(L"Color", category->color);
  }
}

void WriteFiltersSection(const CategoryCatalog& catalog, TextWriter& stream, TextKind kind) {
  LineWriter lines(stream, kind);
  lines.WriteHeader(kFiltersSection);
  for (const FilterRecord& filter : catalog.Filters()) {
    if (!lines.WriteString(L"FilterName", filter.title)) continue;
    lines.WriteNumber(L"Index", static_cast<std::uint32_t>(filter.index));
    lines.WriteNumber(L"VisibleState", filter.visible ? 1 : 0);
    lines.WriteNumber(L"IncludeUncategorized", filter.includeUncategorized ? 1 : 0);
  }
}

}  // namespace tidewell
