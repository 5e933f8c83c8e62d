// The device's categories, the 32 filters, and what each view is restricted to. The categories'
// colours and flags live in the registry, the filters in the filters file.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "categories/category_source.h"
#include "categories/records.h"
#include "platform/machine.h"
#include "settings/settings_store.h"

namespace tidewell {

// A category as its source has it.
struct PimCategory {
  static constexpr std::uint16_t kNoId = 0xFFFF;

  std::wstring name;
  std::uint16_t id = kNoId;
  bool flag = false;
};

enum class RestrictedView : std::uint8_t { kCalendar, kTasks, kContacts, kSpecialEvents };
inline constexpr std::size_t kRestrictedViewCount = 4;

// One of the catalogue's records; a category's is valid until the next rebuild.
using Selection = std::variant<const AllRecord*, const CategoryRecord*, const FilterRecord*>;

class CategoryCatalog {
 public:
  // Empty but for default filters until the first rebuild. Machine and store must outlive it.
  CategoryCatalog(const Machine& machine, const SettingsStore& store);
  CategoryCatalog(const CategoryCatalog&) = delete;
  CategoryCatalog& operator=(const CategoryCatalog&) = delete;

  // Everything anew: the categories of the source with their values, the filters, the selections.
  // `allName` is the name of no restriction.
  void Rebuild(CategorySource& source, std::wstring allName);

  // Takes a category of the source in its place by name. Null for one without a name or an id, and
  // for a name that is there already, compared without regard to case.
  CategoryRecord* Add(const PimCategory& category);

  void LoadCategoryValues();
  // Writes what the registry does not hold already; a value of no meaning is deleted, unless it
  // only stands for one that was refused. Nothing before a rebuild has come to its end.
  void SaveCategoryValues() const;

  // False when there is no file with exactly 32 filters; the filters are the defaults then.
  bool LoadFiltersFile();
  // Leaves the old file or the whole new one, and tells why the new one could not be written.
  // kOther also before a rebuild has come to its end, and when the filters are but the defaults in
  // place of a file that is there and could not be read.
  FileStatus SaveFiltersFile() const;
  // The user wants the defaults, whatever a file holds that could not be read.
  void ResetFilters();

  // The category of exactly that name, else the filter of that index, else no restriction.
  Selection FindByNameOrIndex(const std::wstring& name, std::int32_t filterIndex) const;
  void ResolveSelections();
  const Selection& Selected(RestrictedView view) const {
    return selections_[static_cast<std::size_t>(view)];
  }

  // Null when there is none. Names are compared exactly.
  CategoryRecord* FindCategory(std::wstring_view name) const;
  FilterRecord* FindFilter(std::int32_t index);

  // By name, without regard to case, as the user's locale sorts.
  std::span<const std::unique_ptr<CategoryRecord>> Categories() const { return categories_; }
  std::span<FilterRecord> Filters() { return filters_; }
  std::span<const FilterRecord> Filters() const { return filters_; }
  const AllRecord& All() const { return all_; }
  // False when a call that was refused left a record at its default.
  bool WasReadWhole() const;

 private:
  std::wstring FiltersPath() const;

  Machine machine_;
  const SettingsStore& store_;
  std::vector<std::unique_ptr<CategoryRecord>> categories_;
  FilterSet filters_ = DefaultFilters();
  bool filtersRefused_ = false;
  bool isLoaded_ = false;
  AllRecord all_;
  std::array<Selection, kRestrictedViewCount> selections_;
};

}  // namespace tidewell
