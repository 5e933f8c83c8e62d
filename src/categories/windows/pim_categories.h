// The device's own categories with their icons.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

#include "categories/category_catalog.h"
#include "categories/windows/pim_database.h"
#include "win32/gdi.h"

namespace tidewell {

// The icon of every category that the shell made. Its file is read when the icon is first asked
// for: no start shows one, and reading all of them took as long as loading the settings.
class BitmapIcon final : public CategoryIcon {
 public:
  BitmapIcon(Files& files, std::wstring path) : files_(files), path_(std::move(path)) {}
  // Null where the file is missing or damaged.
  HBITMAP Handle();

 private:
  Files& files_;
  std::wstring path_;
  std::optional<Bitmap> bitmap_;
};

// Adds what the volume holds, the device's own when none is named, with icons from `iconsFolder`.
// No volume, no database or no record adds nothing.
void ReadPimCategories(PimDatabase& database, const std::wstring& volumePath, Files& files,
                       const std::wstring& iconsFolder, CategoryCatalog& catalog);

// Keeps the database open from the reading to the end of its own life.
class PimCategorySource final : public CategorySource {
 public:
  PimCategorySource(Files& files, std::wstring iconsFolder, std::wstring volumePath = {})
      : files_(files), iconsFolder_(std::move(iconsFolder)), volumePath_(std::move(volumePath)) {}
  void ReadInto(CategoryCatalog& catalog) override {
    ReadPimCategories(database_, volumePath_, files_, iconsFolder_, catalog);
  }

 private:
  Files& files_;
  std::wstring iconsFolder_;
  std::wstring volumePath_;
  PimDatabase database_;
};

}  // namespace tidewell
