#include "categories/category_catalog.h"

#include <algorithm>
#include <utility>

#include "categories/filters_file.h"
#include "platform/replacement_file.h"
#include "platform/text.h"
#include "platform/whole_file.h"
#include "settings/read_ahead.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kColorPrefix = L"CatColor.";
constexpr std::wstring_view kFilterPrefix = L"CatFilter.";

std::wstring ValueName(std::wstring_view prefix, const CategoryRecord& category) {
  std::wstring name(prefix);
  return name += category.name;
}

// Asking first costs no more than writing, spares the device's memory, and holds whatever else
// has written the key since it was loaded.
void StoreDword(RegistryKey& key, const std::wstring& name, std::uint32_t value,
                std::uint32_t meaningless, bool wasRefused) {
  if (wasRefused && value == meaningless) return;
  std::array<std::byte, 4> stored{};
  ValueInfo info;
  const RegistryStatus status = key.Query(name, stored, info);
  const bool wanted = value != meaningless;
  if (status == kStatusFileNotFound && !wanted) return;
  const bool same = status == kStatusSuccess && info.type == kTypeDword &&
                    info.size == stored.size() &&
                    std::ranges::equal(stored, std::as_bytes(std::span(&value, 1)));
  if (wanted && same) return;
  WriteDwordOrDelete(&key, name, value, meaningless);
}

}  // namespace

CategoryCatalog::CategoryCatalog(const Machine& machine, const SettingsStore& store)
    : machine_(machine), store_(store) {
  selections_.fill(&all_);
}

void CategoryCatalog::Rebuild(CategorySource& source, std::wstring allName) {
  isLoaded_ = false;
  selections_.fill(&all_);
  categories_.clear();
  all_.name = std::move(allName);
  source.ReadInto(*this);
  LoadCategoryValues();
  LoadFiltersFile();
  ResolveSelections();
  isLoaded_ = true;
}

CategoryRecord* CategoryCatalog::Add(const PimCategory& category) {
  if (category.name.empty() || category.id == PimCategory::kNoId) return nullptr;
  const auto place = std::ranges::lower_bound(
      categories_, category.name,
      [this](const std::wstring& left, const std::wstring& right) {
        return machine_.locale.CompareIgnoringCase(left, right) < 0;
      },
      [](const auto& record) -> const std::wstring& { return record->name; });
  if (place != categories_.end() &&
      machine_.locale.CompareIgnoringCase((*place)->name, category.name) == 0) {
    return nullptr;
  }
  auto record = std::make_unique<CategoryRecord>();
  record->name = category.name;
  record->pimId = category.id;
  record->pimFlag = category.flag;
  return categories_.insert(place, std::move(record))->get();
}

void CategoryCatalog::LoadCategoryValues() {
  const FlushedKey key = CreateSettingKey(machine_.registry, SettingKey::kCategories);
  ReadAhead values(key.Get(), 2 * categories_.size());
  for (const auto& category : categories_) {
    category->colorRefused = category->filterFlagsRefused = false;
    category->color = ReadDword(&values, ValueName(kColorPrefix, *category), category->color,
                                &category->colorRefused);
  }
  for (const auto& category : categories_) {
    category->filterFlags = ReadDword(&values, ValueName(kFilterPrefix, *category),
                                      category->filterFlags, &category->filterFlagsRefused);
  }
}

void CategoryCatalog::SaveCategoryValues() const {
  if (!isLoaded_) return;
  const FlushedKey key = CreateSettingKey(machine_.registry, SettingKey::kCategories);
  if (!key.Get()) return;
  for (const auto& category : categories_) {
    StoreDword(*key.Get(), ValueName(kColorPrefix, *category), category->color,
               CategoryRecord::kNoColor, category->colorRefused);
    StoreDword(*key.Get(), ValueName(kFilterPrefix, *category), category->filterFlags, 0,
               category->filterFlagsRefused);
  }
}

std::wstring CategoryCatalog::FiltersPath() const {
  return store_.root.TWFiltersFileFolder.Value() + L"\\TWFilters.txt";
}

bool CategoryCatalog::LoadFiltersFile() {
  const WholeFile file = ReadWholeFile(machine_.files, FiltersPath(), kLargestFiltersFile);
  filtersRefused_ = file.status != FileStatus::kOk && file.status != FileStatus::kAbsent;
  std::optional<FilterSet> filters = ReadFilters(file.bytes);
  if (!filters) {
    filters_ = DefaultFilters();
    return false;
  }
  filters_ = *std::move(filters);
  return true;
}

FileStatus CategoryCatalog::SaveFiltersFile() const {
  if (!isLoaded_ || (filtersRefused_ && filters_ == DefaultFilters())) return FileStatus::kOther;
  const std::vector<std::byte> bytes = BytesOf(FormatFilters(filters_));
  const WholeFile present = ReadWholeFile(machine_.files, FiltersPath(), bytes.size());
  if (present.bytes == bytes) return FileStatus::kOk;
  ReplacementFile file(machine_.files, FiltersPath());
  if (file.Stream()) file.Stream()->Write(bytes);
  return file.Commit();
}

bool CategoryCatalog::WasReadWhole() const {
  return !filtersRefused_ && std::none_of(categories_.begin(), categories_.end(), [](auto& record) {
    return record->colorRefused || record->filterFlagsRefused;
  });
}

void CategoryCatalog::ResetFilters() {
  filters_ = DefaultFilters();
  filtersRefused_ = false;
}

Selection CategoryCatalog::FindByNameOrIndex(const std::wstring& name,
                                             std::int32_t filterIndex) const {
  if (!name.empty()) {
    if (const CategoryRecord* category = FindCategory(name)) return category;
  }
  if (filterIndex < 1 || filterIndex > kFilterCount) return &all_;
  return &filters_[static_cast<std::size_t>(filterIndex - 1)];
}

void CategoryCatalog::ResolveSelections() {
  const auto resolve = [this](const StringSetting& category, const DwordSetting& filter) {
    return FindByNameOrIndex(category.Value(), filter.Signed());
  };
  selections_ = {
      resolve(store_.calendar.CalendarSelCategory, store_.calendar.CalendarSelFilter),
      resolve(store_.tasks.TasksSelCategory, store_.tasks.TasksSelFilter),
      resolve(store_.contacts.ContactsSelCategory, store_.contacts.ContactsSelFilter),
      resolve(store_.specialEvents.SEventsSelCategory, store_.specialEvents.SEventsSelFilter),
  };
}

CategoryRecord* CategoryCatalog::FindCategory(std::wstring_view name) const {
  const auto found = std::ranges::find_if(
      categories_, [&](const auto& category) { return category->name == name; });
  return found == categories_.end() ? nullptr : found->get();
}

FilterRecord* CategoryCatalog::FindFilter(std::int32_t index) {
  if (index < 1 || index > kFilterCount) return nullptr;
  return &filters_[static_cast<std::size_t>(index - 1)];
}

}  // namespace tidewell
