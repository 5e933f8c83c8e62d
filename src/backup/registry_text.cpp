#include "backup/registry_text.h"

#include "backup/value_lines.h"
#include "platform/text.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kCategoriesSection = L"::Categories::";
constexpr std::wstring_view kFiltersSection = L"::Filters::";
constexpr std::wstring_view kEmptyLine = L"\n";
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

// Puts lines together and writes those that fit.
class LineWriter {
 public:
  LineWriter(TextWriter& stream, std::size_t capacity) : stream_(stream), capacity_(capacity) {}

  bool WriteHeader(std::wstring_view name) {
    line_ = L"\n[";
    line_ += name;
    line_ += L"]\n";
    return WriteWhole();
  }
  bool WriteString(std::wstring_view name, std::wstring_view value) {
    line_.clear();
    AppendStringLine(line_, name, value);
    line_ += L'\n';
    return WriteWhole();
  }
  void WriteNumber(std::wstring_view name, std::uint32_t number) {
    line_.clear();
    AppendDwordLine(line_, name, number);
    line_ += L'\n';
    WriteWhole();
  }

 private:
  bool WriteWhole() {
    if (line_.size() > capacity_) return false;
    stream_.Write(line_);
    return true;
  }

  TextWriter& stream_;
  std::size_t capacity_;
  std::wstring line_;
};

class TreeWriter {
 public:
  TreeWriter(Registry& registry, std::wstring keyPath, TextWriter& stream, TextLimits limits)
      : registry_(registry),
        path_(std::move(keyPath)),
        lines_(stream, limits.lineCapacity),
        dataCapacity_(limits.dataCapacity) {}

  // Writes the key at `path_` and, depth first, its subkeys. The length of a header bounds the
  // depth.
  void WriteTree() {
    const std::unique_ptr<RegistryKey> key = registry_.Create(RegistryRoot::kCurrentUser, path_);
    if (!lines_.WriteHeader(path_) || !key) return;
    WriteValues(*key);

    const std::size_t parentLength = path_.size();
    for (std::uint32_t i = 0; key->EnumSubkey(i, kNameCapacity, subkey_) == kStatusSuccess; ++i) {
      path_ += L'\\';
      path_ += subkey_;
      WriteTree();
      path_.resize(parentLength);
    }
  }

 private:
  void WriteValues(RegistryKey& key) {
    for (std::uint32_t i = 0;
         key.EnumValue(i, kNameCapacity, dataCapacity_, value_) == kStatusSuccess; ++i) {
      if (value_.type == kTypeString) {
        text_.clear();
        AppendData(text_, value_.data);
        lines_.WriteString(value_.name, text_);
      } else if (value_.type == kTypeDword) {
        lines_.WriteNumber(value_.name, DwordOf(value_.data));
      }
    }
  }

  Registry& registry_;
  std::wstring path_;
  LineWriter lines_;
  std::uint32_t dataCapacity_;
  std::wstring subkey_;
  std::wstring text_;
  EnumeratedValue value_;
};

class RegistryTextImport {
 public:
  RegistryTextImport(Registry& registry, CategoryCatalog& catalog, TextReader& stream)
      : registry_(registry), catalog_(catalog), stream_(stream) {}

  bool Read() {
    std::wstring section;
    while (stream_.ReadLine(line_)) {
      if (ParseSectionHeader(line_, section) && !ReadSection(section)) return false;
    }
    return true;
  }

 private:
  bool ReadSection(const std::wstring& name) {
    if (name == kCategoriesSection) {
      ReadCategories();
    } else if (name == kFiltersSection) {
      ReadFilterTitles();
    } else {
      if (name == kProductKey) registry_.DeleteTree(RegistryRoot::kCurrentUser, name);
      return ReadValues(name);
    }
    return true;
  }

  // False at the end of a section or of the text.
  bool ReadSectionLine() { return stream_.ReadLine(line_) && line_ != kEmptyLine; }

  // Either marker is written whatever value they hold now: a string unless it is the sentinel, a
  // number because it never equals the next one. The caller flushes when all is in.
  bool ReadValues(const std::wstring& path) {
    static const std::wstring kSentinel = L"not_the_same";
    const std::unique_ptr<RegistryKey> key = registry_.Create(RegistryRoot::kCurrentUser, path);
    if (!key) return false;
    while (ReadSectionLine()) {
      name_.clear();
      if (line_.find(kStringMarker) != std::wstring_view::npos) {
        text_.clear();  // a malformed line empties the key's unnamed value
        ParseStringValueLine(line_, name_, text_);
        WriteStringOrDelete(key.get(), name_, text_, kSentinel);
      } else if (line_.find(kDwordMarker) != std::wstring_view::npos) {
        std::int32_t number = 0;
        ParseDwordValueLine(line_, name_, number, 10);
        const auto value = static_cast<std::uint32_t>(number);
        WriteDwordOrDelete(key.get(), name_, value, value + 1);
      }
    }
    return true;
  }

  bool ReadNumberLine(std::int32_t& number) {
    if (!stream_.ReadLine(line_)) return false;
    ParseDwordValueLine(line_, name_, number, 10);
    return true;
  }

  // A record that the end of the text cuts off is not taken.
  void ReadCategories() {
    while (ReadSectionLine()) {
      std::wstring category;
      std::int32_t flags = 0;
      std::int32_t color = -1;
      ParseStringValueLine(line_, name_, category);
      if (!ReadNumberLine(flags) || !ReadNumberLine(color)) return;
      // Some writers put one more line in front of the colour.
      if (!EqualIgnoringCase(name_, L"Color") && !ReadNumberLine(color)) return;
      if (CategoryRecord* record = catalog_.FindCategory(category)) {
        record->filterFlags = static_cast<std::uint32_t>(flags);
        record->color = static_cast<std::uint32_t>(color);
      }
    }
  }

  // A malformed line leaves the value of the record before it.
  void ReadFilterTitles() {
    std::wstring title;
    std::int32_t index = 0;
    std::int32_t visible = 0;
    std::int32_t uncategorized = 0;
    while (ReadSectionLine()) {
      ParseStringValueLine(line_, name_, title);
      if (!ReadNumberLine(index) || !ReadNumberLine(visible) || !ReadNumberLine(uncategorized)) {
        return;
      }
      if (FilterRecord* record = catalog_.FindFilter(index)) {
        record->title = title;
        record->visible = visible != 0;
        record->includeUncategorized = uncategorized != 0;
      }
    }
  }

  Registry& registry_;
  CategoryCatalog& catalog_;
  TextReader& stream_;
  std::wstring_view line_;
  std::wstring name_;
  std::wstring text_;
};

}  // namespace

void ExportRegistryText(Registry& registry, const CategoryCatalog& catalog,
                        const std::wstring& keyPath, TextWriter& stream, TextLimits limits) {
  WriteKeyTree(registry, keyPath, stream, limits);
  WriteCategoriesSection(catalog, stream, limits);
  WriteFiltersSection(catalog, stream, limits);
}

void WriteKeyTree(Registry& registry, const std::wstring& keyPath, TextWriter& stream,
                  TextLimits limits) {
  TreeWriter(registry, keyPath, stream, limits).WriteTree();
}

void WriteCategoriesSection(const CategoryCatalog& catalog, TextWriter& stream, TextLimits limits) {
  LineWriter lines(stream, limits.lineCapacity);
  lines.WriteHeader(kCategoriesSection);
  for (const auto& category : catalog.Categories()) {
    if (!lines.WriteString(L"Category", category->name)) continue;
    lines.WriteNumber(L"FiltersFlag", category->filterFlags);
    lines.WriteNumber(L"Color", category->color);
  }
}

void WriteFiltersSection(const CategoryCatalog& catalog, TextWriter& stream, TextLimits limits) {
  LineWriter lines(stream, limits.lineCapacity);
  lines.WriteHeader(kFiltersSection);
  for (const FilterRecord& filter : catalog.Filters()) {
    if (!lines.WriteString(L"FilterName", filter.title)) continue;
    lines.WriteNumber(L"Index", static_cast<std::uint32_t>(filter.index));
    lines.WriteNumber(L"VisibleState", filter.visible ? 1 : 0);
    lines.WriteNumber(L"IncludeUncategorized", filter.includeUncategorized ? 1 : 0);
  }
}

bool IsRegistryText(TextReader& stream) {
  std::wstring_view line;
  return stream.Rewind() && stream.ReadLine(line) && line == kEmptyLine;
}

bool ImportRegistryText(Registry& registry, CategoryCatalog& catalog, TextReader& stream) {
  return IsRegistryText(stream) && RegistryTextImport(registry, catalog, stream).Read();
}

}  // namespace tidewell
