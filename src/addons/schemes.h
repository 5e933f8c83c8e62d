// The colour and font schemes: each a file of the present colours, fonts and categories, in the
// folder Schemes beside the Today item; docs/backup-format.md has the format.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "backup/registry_text.h"
#include "categories/category_catalog.h"
#include "platform/machine.h"
#include "platform/replacement_file.h"
#include "platform/whole_file.h"
#include "settings/settings_store.h"

namespace tidewell {

inline constexpr const wchar_t* kSchemeExtension = L".scm";
// What the last application of a scheme replaced; a scheme like any other.
inline constexpr const wchar_t* kBeforeApplying = L"Before applying.scm";
// Larger files count as none.
inline constexpr std::size_t kLargestScheme = 16 * 1024 * 1024;

enum class SchemeResult : std::uint8_t {
  kUnreadable,  // nothing was changed
  kRefused,     // the present colours and fonts are gone, but for what could be read
  kApplied,     // in the registry, and the categories in memory; the store is to be loaded anew
};

class Schemes {
 public:
  // All three outlive it.
  Schemes(const Machine& machine, SettingsStore& store, CategoryCatalog& catalog)
      : machine_(machine), store_(store), catalog_(catalog) {}

  // The files' names, in the file system's order.
  std::vector<std::wstring> Names() const;
  // What is set now, saved or not, under a name without extension. kInUse when there is such a
  // scheme, which stays; leaves the whole new one or none. kOther also when a key cannot be read.
  FileStatus Save(const std::wstring& name) const;
  FileStatus Remove(const std::wstring& file) const;
  // Replaces colours and fonts wholly. What is set now goes to kBeforeApplying, if it can be read
  // whole and written: before that, or afterwards where that is what is applied. After a refusal,
  // what was set before it stays there.
  SchemeResult Apply(const std::wstring& file);

 private:
  std::wstring PathOf(const std::wstring& file) const;
  bool WriteTo(ReplacementFile& file, TextKind kind) const;
  bool WasOneRefused() const;
  SchemeResult Import(const WholeFile& scheme);

  Machine machine_;
  SettingsStore& store_;
  CategoryCatalog& catalog_;
  bool wasRefused_ = false;
};

}  // namespace tidewell
