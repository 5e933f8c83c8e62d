#include "backup/registry_text.h"

#include <algorithm>

#include "backup/exact_lines.h"
#include "backup/section_names.h"
#include "platform/text.h"
#include "settings/registry_values.h"
#include "text_format/value_lines.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kEmptyLine = L"\n";

// Takes the next name off a key's path, over any number of backslashes.
std::wstring_view TakeKeyName(std::wstring_view& path) {
  const std::size_t end = std::min(path.find(L'\\'), path.size());
  const std::wstring_view name = path.substr(0, end);
  path.remove_prefix(std::min(path.find_first_not_of(L'\\', end), path.size()));
  return name;
}

// As the registry finds keys: name by name, without regard to case.
bool IsWithin(std::wstring_view tree, std::wstring_view path) {
  while (!tree.empty()) {
    if (!EqualIgnoringCase(TakeKeyName(path), TakeKeyName(tree))) return false;
  }
  return true;
}

// Where the reader puts what it finds.
class TextTarget {
 public:
  virtual ~TextTarget() = default;
  // The key that takes the values until the next one is opened. False ends the reading.
  virtual bool OpenKey(const std::wstring& path) = 0;
  virtual void TakeValue(const ParsedValue&) {}
  virtual void TakeExactValue(const EnumeratedValue&) {}
  virtual void TakeCategory(const std::wstring& /*name*/, std::int32_t /*flags*/,
                            std::int32_t /*color*/) {}
  virtual void TakeFilter(std::int32_t /*index*/, const std::wstring& /*title*/, bool /*visible*/,
                          bool /*uncategorized*/) {}
};

class RegistryTextReader {
 public:
  RegistryTextReader(TextReader& stream, TextTarget& target) : stream_(stream), target_(target) {}

  // False unless the text begins with an empty line; the rest is then read by Read.
  bool Begin() {
    stream_.Rewind();
    return stream_.ReadLine(line_) && line_ == kEmptyLine;
  }

  // False when the target refused a key.
  bool Read() {
    if (!stream_.ReadLine(line_)) return true;
    isCopy_ = line_ == kCopyMark;
    if (isCopy_) stream_.TakeLongLines();
    std::wstring section;
    do {
      if (ParseSectionHeader(line_, section) && !ReadSection(section)) return false;
    } while (stream_.ReadLine(line_));
    return true;
  }

 private:
  bool ReadSection(std::wstring& name) {
    if (name == kCategoriesSection) {
      ReadCategories();
    } else if (name == kFiltersSection) {
      ReadFilterTitles();
    } else {
      if (isCopy_) ParseExactSectionName(std::wstring(name), name);
      if (!target_.OpenKey(name)) return false;
      ReadValues();
    }
    return true;
  }

  // False at the end of a section or of the text.
  bool ReadSectionLine() { return stream_.ReadLine(line_) && line_ != kEmptyLine; }

  void ReadValues() {
    while (ReadSectionLine()) {
      if (isCopy_ && ParseExactLine(line_, exact_)) {
        target_.TakeExactValue(exact_);
      } else if (ParseValueLine(line_, value_)) {
        target_.TakeValue(value_);
      }
    }
  }

  // The string of the line that begins a record; a malformed one leaves it as it was.
  void ParseRecordText(std::wstring& text) {
    if (isCopy_ && ParseExactLine(line_, exact_)) {
      text = TextOfBytes(exact_.data);
      text.resize(std::min(text.find(L'\0'), text.size()));
    } else {
      ParseStringValueLine(line_, name_, text);
    }
  }

  // A malformed line has no name and leaves the number as it was.
  bool ReadNumberLine(std::int32_t& number) {
    if (!stream_.ReadLine(line_)) return false;
    name_.clear();
    ParseDwordValueLine(line_, name_, number, 10);
    return true;
  }

  // A record that the end of the text cuts off is not taken.
  void ReadCategories() {
    while (ReadSectionLine()) {
      std::wstring category;
      std::int32_t flags = 0;
      std::int32_t color = -1;
      ParseRecordText(category);
      if (!ReadNumberLine(flags) || !ReadNumberLine(color)) return;
      // Some writers put one more line in front of the colour.
      if (!EqualIgnoringCase(name_, L"Color") && !ReadNumberLine(color)) return;
      target_.TakeCategory(category, flags, color);
    }
  }

  // A malformed line leaves the value of the record before it.
  void ReadFilterTitles() {
    std::wstring title;
    std::int32_t index = 0;
    std::int32_t visible = 0;
    std::int32_t uncategorized = 0;
    while (ReadSectionLine()) {
      ParseRecordText(title);
      if (!ReadNumberLine(index) || !ReadNumberLine(visible) || !ReadNumberLine(uncategorized)) {
        return;
      }
      target_.TakeFilter(index, title, visible != 0, uncategorized != 0);
    }
  }

  TextReader& stream_;
  TextTarget& target_;
  bool isCopy_ = false;
  std::wstring_view line_;
  std::wstring name_;
  ParsedValue value_;
  EnumeratedValue exact_;
};

class OutsideKeyFinder final : public TextTarget {
 public:
  bool OpenKey(const std::wstring& path) override {
    if (!IsWithin(kProductKey, path)) outsideKey = path;
    return !outsideKey;
  }

  std::optional<std::wstring> outsideKey;
};

class ImportTarget final : public TextTarget {
 public:
  ImportTarget(Registry& registry, CategoryCatalog& catalog, std::span<const std::wstring> trees)
      : registry_(registry), catalog_(catalog), trees_(trees) {}

  bool HasChanged() const { return hasChanged_; }

  bool OpenKey(const std::wstring& path) override {
    key_.reset();
    if (!Takes(path)) return true;
    // A deletion that failed may have come half way.
    if (path == kProductKey &&
        registry_.DeleteTree(RegistryRoot::kCurrentUser, path) != kStatusFileNotFound) {
      hasChanged_ = true;
    }
    key_ = registry_.Create(RegistryRoot::kCurrentUser, path);
    if (key_) hasChanged_ = true;
    return key_ != nullptr;
  }

  // Written whatever the registry holds now, but for the string that an import deletes. The caller
  // flushes when all is in.
  void TakeValue(const ParsedValue& value) override {
    if (!key_) return;
    static const std::wstring kSentinel(kDeletedString);
    if (value.isNumber) {
      WriteDword(key_.get(), value.name, static_cast<std::uint32_t>(value.number));
    } else {
      WriteStringOrDelete(key_.get(), value.name, value.text, kSentinel);
    }
  }

  void TakeExactValue(const EnumeratedValue& value) override {
    if (key_) key_->Set(value.name, value.type, value.data);
  }

  void TakeCategory(const std::wstring& name, std::int32_t flags, std::int32_t color) override {
    CategoryRecord* record = catalog_.FindCategory(name);
    if (!record) return;
    record->filterFlags = static_cast<std::uint32_t>(flags);
    record->color = static_cast<std::uint32_t>(color);
    hasChanged_ = true;
  }

  void TakeFilter(std::int32_t index, const std::wstring& title, bool visible,
                  bool uncategorized) override {
    FilterRecord* record = trees_.empty() ? catalog_.FindFilter(index) : nullptr;
    if (!record) return;
    record->title = title;
    record->visible = visible;
    record->includeUncategorized = uncategorized;
    hasChanged_ = true;
  }

 private:
  bool Takes(const std::wstring& path) const {
    const auto holdsIt = [&](const std::wstring& tree) { return IsWithin(tree, path); };
    return trees_.empty() || std::ranges::any_of(trees_, holdsIt);
  }

  Registry& registry_;
  CategoryCatalog& catalog_;
  std::span<const std::wstring> trees_;
  std::unique_ptr<RegistryKey> key_;  // null while a section is passed over
  bool hasChanged_ = false;
};

}  // namespace

TextSurvey SurveyRegistryText(TextReader& stream) {
  OutsideKeyFinder finder;
  RegistryTextReader reader(stream, finder);
  if (!reader.Begin()) return {};
  reader.Read();
  return {true, finder.outsideKey};
}

TextImport ImportRegistryText(Registry& registry, CategoryCatalog& catalog, TextReader& stream,
                              std::span<const std::wstring> trees) {
  ImportTarget target(registry, catalog, trees);
  RegistryTextReader reader(stream, target);
  if (!reader.Begin()) return TextImport::kRefused;
  if (reader.Read()) return TextImport::kWhole;
  return target.HasChanged() ? TextImport::kInPart : TextImport::kRefused;
}

}  // namespace tidewell
