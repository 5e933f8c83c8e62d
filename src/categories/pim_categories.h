// The device's own categories with their icons.
#pragma once

#include <windows.h>

#include <string>

#include "categories/category_catalog.h"
#include "categories/pim_database.h"

namespace tidewell {

// The icon of every category that the shell made.
class BitmapIcon final : public CategoryIcon {
 public:
  explicit BitmapIcon(HBITMAP bitmap) : bitmap_(bitmap) {}
  ~BitmapIcon() override { DeleteObject(bitmap_); }
  HBITMAP Bitmap() const { return bitmap_; }

 private:
  HBITMAP bitmap_;
};

// Adds what the volume holds, the device's own when none is named, with icons from `iconsFolder`.
// No volume, no database or no record adds nothing.
void ReadPimCategories(PimDatabase& database, const std::wstring& volumePath,
                       const std::wstring& iconsFolder, CategoryCatalog& catalog);

// Keeps the database open from the reading to the end of its own life.
class PimCategorySource final : public CategorySource {
 public:
  explicit PimCategorySource(std::wstring iconsFolder, std::wstring volumePath = {})
      : iconsFolder_(std::move(iconsFolder)), volumePath_(std::move(volumePath)) {}
  void ReadInto(CategoryCatalog& catalog) override {
    ReadPimCategories(database_, volumePath_, iconsFolder_, catalog);
  }

 private:
  std::wstring iconsFolder_;
  std::wstring volumePath_;
  PimDatabase database_;
};

}  // namespace tidewell
