#include "backup/registry_text.h"

#include <algorithm>

#include "backup/registry_text_reader.h"
#include "backup/section_names.h"
#include "platform/text.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

// Takes the next name off a key's path, over any number of backslashes.
std::wstring_view TakeKeyName(std::wstring_view& path) {
  const std::size_t end = std::min(path.find(L'\\'), path.size());
  const std::wstring_view name = path.substr(0, end);
  path.remove_prefix(std::min(path.find_first_not_of(L'\\', end), path.size()));
  return name;
}

class OutsideKeyFinder final : public TextTarget {
 public:
  bool OpenKey(const std::wstring& path) override {
    if (!IsWithinKey(kProductKey, path)) outsideKey = path;
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
    const auto holdsIt = [&](const std::wstring& tree) { return IsWithinKey(tree, path); };
    return trees_.empty() || std::ranges::any_of(trees_, holdsIt);
  }

  Registry& registry_;
  CategoryCatalog& catalog_;
  std::span<const std::wstring> trees_;
  std::unique_ptr<RegistryKey> key_;  // null while a section is passed over
  bool hasChanged_ = false;
};

}  // namespace

bool IsWithinKey(std::wstring_view tree, std::wstring_view path) {
  while (!tree.empty()) {
    if (!EqualIgnoringCase(TakeKeyName(path), TakeKeyName(tree))) return false;
  }
  return true;
}

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
